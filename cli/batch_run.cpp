#include "batch_run.h"

#include <memory>
#include <system_error>

#include "batch_pipeline.h"
#include "option_values.h"

namespace {

BatchPlan planOf(const BatchChoices& choices, const CsvRow& header, char separator) {
  BatchPlan plan{.choices = choices,
                 .columns = batchColumns(header, choices.isFromWindow),
                 .separator = separator,
                 .outputSeparator = separator,
                 .outputDecimal = choices.locale.decimal.front()};
  if (choices.isForSpreadsheet) {
    plan.outputSeparator = ';';
    plan.outputDecimal = ',';
  }
  return plan;
}

std::string headerOf(CsvSource& source, char& separator) {
  try {
    return source.header(separator);
  } catch (const RowTooLong& error) {
    throw OptionError(error.what());
  }
}

}  // namespace

void BatchRun::answer(BatchReport& report) const {
  CsvSource source(read);
  char separator = ',';
  const std::string headerText = headerOf(source, separator);
  CsvRow header;
  if (!CsvReader(headerText, separator).next(header))
    throw OptionError("there is no first line with the names of the columns");
  const BatchPlan plan = planOf(choices, header, separator);
  std::string out;
  BatchRows(plan).appendHeader(header, out);
  write(out);
  report.skip(lineEndsIn(headerText), headerText.size());

  std::string whyEnded;
  runInOrder({.next =
                  [&](std::string& chunk) {
                    try {
                      return source.next(chunk);
                    } catch (const RowTooLong& error) {
                      whyEnded = error.what();
                    } catch (const std::system_error& error) {
                      whyEnded = "cannot be read further: " + error.code().message();
                    }
                    return false;
                  },
              .makeWorker =
                  [&] {
                    return [rows = std::make_shared<BatchRows>(plan)](
                               std::string_view chunk, ChunkAnswer& answer) { rows->answer(chunk, answer); };
                  },
              .write =
                  [&](const ChunkAnswer& answer) {
                    write(answer.output);
                    report.add(answer);
                  }},
             threads);
  if (!whyEnded.empty()) report.fail(whyEnded);
}
