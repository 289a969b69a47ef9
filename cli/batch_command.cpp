#include "batch_command.h"

#include <fmt/format.h>

#include <algorithm>
#include <CLI/CLI.hpp>
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

constexpr const char* kColumns =
    "The first line names the columns: kind (single, multiple, payment, billpoint) and the options "
    "of those commands, such as site, opening or two_categories. Without a column kind, and where its "
    "cell is empty, a row is a single item; without site, or where it is empty, the item is sold on "
    "eBay.com. Cells of columns that a kind does not have are ignored, and all cells are written as they "
    "are, followed by the fees, the net, the currency, and what is wrong with the row. A row of more "
    "than 16 MB is left out: in its place stands a row of empty cells that says so.";

/// Two for each processor: while one waits for its turn to write, another works.
unsigned threadCount() {
  constexpr unsigned most = 8;
  return 2 * std::clamp(std::thread::hardware_concurrency(), 1U, most);
}

std::unique_ptr<InputFile> opened(const std::string& name) {
  try {
    auto file = std::make_unique<InputFile>(name);
    if (file->isOutput()) throw OptionError(name + ": the answer would be written into this very file");
    return file;
  } catch (const std::system_error& error) {
    throw OptionError(name + ": " + error.code().message());
  }
}

void answer(const BatchRun& run, InputFile& input, const std::string& name, Session& session) {
  BatchReport report(
      {.name = name, .size = input.size(), .showsProgress = isErrorTerminal() && !isOutputTerminal()},
      session.errors);
  std::string whyUnwritten;
  try {
    run.answer(report);
    finishOutput();
  } catch (const OptionError& error) {
    throw OptionError(name + ": " + error.what());
  } catch (const TableError& error) {
    throw OptionError(fmt::format("{}:{}: {}", name, error.line() + 1, error.what()));
  } catch (const OutputError& error) {
    whyUnwritten = error.what();
  }
  report.finish();
  if (!whyUnwritten.empty()) session.errors << "tessaloom-fees: " << whyUnwritten << '\n';
  if (report.hasErrors() || !whyUnwritten.empty()) session.status = SomeFailed;
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
  answer(run, *input, options.file, session);
}

}  // namespace

void addBatchCommand(CLI::App& program, Session& session) {
  CLI::App* command = program.add_subcommand(
      "batch", "The fees of many listings and payments, one in each row of a CSV file");
  command->footer(kColumns);
  const auto options = std::make_shared<BatchOptions>();
  command->add_option("FILE", options->file, "a CSV file, or - for the standard input")
      ->required()
      ->type_name("");
  addDecimalOption(*command, session);
  command->add_flag(
      "--excel", options->isForSpreadsheet,
      "write what a German or French spreadsheet opens by a double click: with a byte order mark, "
      "semicolons and decimal commas, also in the columns of amounts and rates, whose numbers lose their "
      "thousands separators and currency signs. A cell that it would run as a formula gets an apostrophe in "
      "front; without this option such cells stay as they are");
  command->add_flag(
      "--from-window", options->isFromWindow,
      "the columns are kind, site (1 to 4) and the controls of the window by their names, the cells "
      "what stands in them; written is every box as the window would show it. Their numbers are read as the "
      "window reads them: with a decimal point unless --decimal says otherwise, and 9,99 is then 999");
  command->callback([options, &session] { batch(*options, session); });
}
