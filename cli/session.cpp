#include "session.h"

#include <map>

NumberLocale Session::locale() const {
  return decimal == "," ? NumberLocale{",", ".", "€"} : NumberLocale{".", ",", "$"};
}

void addOutputOptions(CLI::App& command, Session& session) {
  const std::map<std::string, Format> formats{
      {"text", Format::Text}, {"csv", Format::Csv}, {"json", Format::Json}};
  command.add_option("--format", session.format, "text, csv or json (text)")
      ->transform(CLI::Transformer(formats, CLI::ignore_case).description(""))
      ->type_name("text|csv|json");
  command
      .add_option("--decimal", session.decimal, "the decimal sign of numbers, read and written: . or , (.)")
      ->check(CLI::IsMember({".", ","}).description(""))
      ->type_name("SIGN");
}
