#include "batch_command.h"

#include <algorithm>
#include <memory>
#include <system_error>
#include <thread>

#include "batch_run.h"
#include "console.h"
#include "option_values.h"

namespace {

struct BatchOptions {
  std::string file;
  bool isFromWindow = false;
  bool isForSpreadsheet = false;
};

constexpr const char* kHelp =
    "The fees of many listings and payments, one in each row of a CSV file. Its first line names the "
    "columns: "
    "kind (single, multiple, payment, billpoint) and the options of those commands, such as site, opening or "
    "two_categories; cells of columns that a kind does not have are ignored, and all cells are written as "
    "they "
    "are, followed by the fees, the net, the currency, and what is wrong with the row.";

/// One thread more than there are processors: one of them may be waiting to read or to write.
unsigned threadCount() {
  constexpr unsigned most = 8;
  return std::min(std::thread::hardware_concurrency(), most) + 1;
}

std::unique_ptr<InputFile> opened(const std::string& name) {
  try {
    return std::make_unique<InputFile>(name);
  } catch (const std::system_error& error) {
    throw OptionError(name + ": " + error.code().message());
  }
}

void answer(const BatchRun& run, InputFile& input, const std::string& name, Session& session) {
  BatchReport report(
      {.name = name, .size = input.size(), .showsProgress = isErrorTerminal() && !isOutputTerminal()},
      session.errors);
  try {
    run.answer(report);
    finishOutput();
  } catch (const OptionError& error) {
    throw OptionError(name + ": " + error.what());
  }
  report.finish();
  if (report.hasErrors()) session.status = SomeFailed;
}

void batch(const BatchOptions& options, Session& session) {
  endWithReaderOfOutput();
  const auto input = opened(options.file);
  bool hasRead = false;
  const BatchRun run{.choices = {.locale = session.locale(),
                                 .hasDecimal = !session.decimal.empty(),
                                 .isFromWindow = options.isFromWindow,
                                 .isForSpreadsheet = options.isForSpreadsheet},
                     .read =
                         [&](std::span<char> bytes) {
                           try {
                             const std::size_t count = input->read(bytes);
                             hasRead = true;
                             return count;
                           } catch (const std::system_error& error) {
                             if (!hasRead) throw OptionError(error.code().message());
                             throw;
                           }
                         },
                     .write = writeToOutput,
                     .threads = threadCount()};
  try {
    answer(run, *input, options.file, session);
  } catch (const std::system_error& error) {
    session.errors << "tessaloom-fees: cannot write: " << error.code().message() << '\n';
    session.status = SomeFailed;
  }
}

}  // namespace

void addBatchCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand("batch", kHelp);
  const auto options = std::make_shared<BatchOptions>();
  command->add_option("file", options->file, "a CSV file, or - for the standard input")
      ->required()
      ->type_name("FILE");
  command
      ->add_option(
          "--decimal", session.decimal,
          "the decimal sign of the numbers, read and written: . or , (.). Without it a cell that could "
          "mean two numbers, such as 1.234, is an error")
      ->check(CLI::IsMember({".", ","}).description(""))
      ->type_name("SIGN");
  command->add_flag(
      "--excel", options->isForSpreadsheet,
      "write what a German or French spreadsheet opens by a double click: with a byte order mark, "
      "semicolons and decimal commas. A cell that it would run as a formula gets an apostrophe in "
      "front; without this option such cells stay as they are");
  command->add_flag(
      "--from-window", options->isFromWindow,
      "the columns are kind, site (1 to 4) and the controls of the window by their names, the cells "
      "what stands in them; written is every box as the window would show it");
  command->callback([options, &session] { batch(*options, session); });
}
