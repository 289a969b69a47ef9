#include "batch_run.h"

#include <memory>
#include <system_error>

#include "batch_pipeline.h"
#include "option_values.h"

namespace {

BatchColumns columnsOf(const CsvRow& header, bool isFromWindow) {
  try {
    return batchColumns(header, isFromWindow);
  } catch (const OptionError& error) {
    throw TableError(header.line, error.what());
  }
}

BatchPlan planOf(const BatchChoices& choices, const CsvRow& header, char separator) {
  BatchPlan plan{.choices = choices,
                 .columns = columnsOf(header, choices.isFromWindow),
                 .separator = separator,
                 .outputSeparator = separator,
                 .outputDecimal = choices.locale.decimal.front()};
  if (choices.isForSpreadsheet) {
    plan.outputSeparator = ';';
    plan.outputDecimal = ',';
  }
  return plan;
}

/// Who reads the answer by the names of its columns finds the old cells.
void tellOfNamesTaken(const CsvRow& header, const BatchPlan& plan, BatchReport& report) {
  std::string names;
  (plan.choices.isFromWindow ? windowAnswers(plan) : feeAnswers(plan))->appendHeader(names);
  CsvRow answer;
  CsvReader(names, plan.outputSeparator).next(answer);
  const NamesTaken taken = namesTaken(header, answer);
  if (taken.count == 1) {
    report.note(header.line, "the column " + taken.list + " is there already; the new one stands at the end");
  } else if (taken.count > 1) {
    report.note(header.line,
                "the columns " + taken.list + " are there already; the new ones stand at the end");
  }
}

/// Reads the first line, tells what is to be told of it, and writes it.
BatchPlan begin(const BatchRun& run, CsvSource& source, BatchReport& report) {
  char separator = ',';
  const std::string names = source.header(separator);
  const std::size_t linesBefore = lineEndsIn(source.separatorLine());
  CsvRow header;
  CsvReader reader(names, separator);
  const bool isAny = reader.next(header);
  header.line += linesBefore;
  if (!isAny) throw TableError(header.line, "there is no first line with the names of the columns");
  BatchPlan plan = planOf(run.choices, header, separator);
  std::string out;
  // Behind a byte order mark a spreadsheet would not understand it, and it would name the wrong sign.
  if (!run.choices.isForSpreadsheet && linesBefore > 0) {
    out.append(source.separatorLine(), 0, source.separatorLine().find_first_of("\r\n")).append(1, '\n');
  }
  BatchRows(plan).appendHeader(header, out);
  tellOfNamesTaken(header, plan, report);
  run.write(out);
  report.skip(linesBefore + lineEndsIn(names), source.separatorLine().size() + names.size());
  return plan;
}

}  // namespace

void BatchRun::answer(BatchReport& report) const {
  CsvSource source(read);
  const BatchPlan plan = begin(*this, source, report);

  std::string whyEnded;
  runInOrder({.next =
                  [&](std::string& chunk) {
                    try {
                      return source.next(chunk);
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
