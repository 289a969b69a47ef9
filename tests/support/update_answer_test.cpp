#include "update_answer.h"

#include <gtest/gtest.h>

namespace {

struct StatusRow {
  const char* rule;
  QString text;
  bool isValid;
  bool isOffered;
  bool isCurrent;
  const char* address;
  const char* message;
};

QString status(const QString& inner) {
  return QStringLiteral("<status>") + inner + QStringLiteral("</status>");
}

const QString kAll = QStringLiteral(
    "<current>0</current><newversion>1</newversion>"
    "<updateurl>https://u.example/setup.exe</updateurl><message>Version 2 is here.</message>");
const QString kUrl = QStringLiteral("https://u.example/setup.exe");

// clang-format off
const StatusRow kStatusRows[] = {
    // What holds a status
    {"a whole answer",                        status(kAll),                                        true,  true,  false, "https://u.example/setup.exe", "Version 2 is here."},
    {"the running version is the newest",     status("<current>1</current><newversion>0</newversion>"), true, false, true, "", ""},
    {"a newversion element of 0 alone, 26 characters", status("<newversion>0</newversion>"),       true,  false, false, "", ""},
    {"a newversion element of 1 alone",       status("<newversion>1</newversion>"),                true,  true,  false, "", ""},
    {"text around the status",                "HTTP\r\n<html>" + status(kAll) + "</html>",         true,  true,  false, "https://u.example/setup.exe", "Version 2 is here."},
    {"blanks and line breaks between",        status("\r\n <newversion>1</newversion>\r\n\t<message>M</message>\n"), true, true, false, "", "M"},
    {"elements in another order",             status("<message>M</message><newversion>1</newversion><current>1</current>"), true, true, true, "", "M"},
    {"text that is no element, 21 characters", status(QString(21, u'x')),                          true,  false, false, "", ""},
    // What holds none
    {"nothing",                               "",                                                  false, false, false, "", ""},
    {"no status",                             kAll,                                                false, false, false, "", ""},
    {"a page that tells of a failure",        "<html><body>404 Not Found</body></html>",           false, false, false, "", ""},
    {"an empty status",                       status(""),                                          false, false, false, "", ""},
    {"20 characters",                         status(QString(20, u'x')),                           false, false, false, "", ""},
    {"20 characters with an element",         status("<message>A</message>"),                      false, false, false, "", ""},
    {"21 characters with an element",         status("<message>AB</message>"),                     true,  false, false, "", "AB"},
    {"20 characters with a flag",             status("<current>1</current>"),                      false, false, false, "", ""},
    {"21 characters with a flag",             status("<current>1</current> "),                     true,  false, true,  "", ""},
    {"no end of the status",                  "<status>" + kAll,                                   false, false, false, "", ""},
    {"the end before the beginning",          "</status>" + kAll + "<status>",                     false, false, false, "", ""},
    {"other letters in the tag",              "<Status>" + kAll + "</Status>",                     false, false, false, "", ""},
    {"a blank in the tag",                    "<status >" + kAll + "</status>",                    false, false, false, "", ""},
    {"half of the answer",                    status(kAll).left(60),                               false, false, false, "", ""},
    {"what is no text",                       QString(30'000, QChar(u'\0')),                       false, false, false, "", ""},
    // Flags
    {"yes is no 1",                           status("<newversion>yes</newversion>"),              true,  false, false, "", ""},
    {"yes with an address is no 1",           status("<newversion>yes</newversion><updateurl>" + kUrl + "</updateurl>"), true, false, false, "https://u.example/setup.exe", ""},
    {"a blank behind 1",                      status("<newversion>1 </newversion>"),               true,  false, false, "", ""},
    {"a blank before 1",                      status("<newversion> 1</newversion>"),               true,  false, false, "", ""},
    {"a line break behind 1",                 status("<newversion>1\n</newversion>"),              true,  false, false, "", ""},
    {"01",                                    status("<newversion>01</newversion>"),               true,  false, false, "", ""},
    {"11",                                    status("<newversion>11</newversion>"),               true,  false, false, "", ""},
    {"-1",                                    status("<newversion>-1</newversion>"),               true,  false, false, "", ""},
    {"true",                                  status("<newversion>true</newversion>"),             true,  false, false, "", ""},
    {"an empty flag",                         status("<newversion></newversion>"),                 true,  false, false, "", ""},
    {"1 of full width",                       status(QStringLiteral("<newversion>１</newversion>")), true, false, false, "", ""},
    {"yes is not current",                    status("<current>yes</current>....."),               true,  false, false, "", ""},
    {"01 is not current",                     status("<current>01</current>....."),                true,  false, false, "", ""},
    // Elements
    {"an element without an end",             status("<newversion>1</newversion><message>M"),      true,  true,  false, "", ""},
    {"a flag without an end",                 status("<newversion>1<message>Hello</message>"),     true,  false, false, "", "Hello"},
    {"an end without a beginning",            status("1</newversion><message>Hello</message>"),    true,  false, false, "", "Hello"},
    {"the end that stands before the beginning is not its end",
                                              status("</message><message>Hello</message>"),        true,  false, false, "", "Hello"},
    {"elements before the status",            "<newversion>1</newversion>" + status("<message>Hello</message>"), true, false, false, "", "Hello"},
    {"elements behind the status",            status("<message>Hello</message>") + "<newversion>1</newversion>", true, false, false, "", "Hello"},
    {"an end behind the status",              status("<message>Hello, all of you") + "</message>", true,  false, false, "", ""},
    {"of two elements the first counts",      status("<newversion>0</newversion><newversion>1</newversion>"), true, false, false, "", ""},
    {"of two messages the first counts",      status("<message>First</message><message>Second</message>"), true, false, false, "", "First"},
    {"of two statuses the first counts",      status("<newversion>0</newversion>") + status(kAll), true,  false, false, "", ""},
    {"an invalid status before a valid one",  status("") + status(kAll),                           false, false, false, "", ""},
    {"an empty message",                      status("<newversion>0</newversion><message></message>"), true, false, false, "", ""},
    {"a message of blanks",                   status("<newversion>0</newversion><message>  </message>"), true, false, false, "", "  "},
    {"a message of lines",                    status("<message>One\nTwo\r\nThree</message>"),      true,  false, false, "", "One\nTwo\r\nThree"},
    {"markup in a message is text",           status("<message><b>M</b> &amp; N</message>"),       true,  false, false, "", "<b>M</b> &amp; N"},
    {"umlauts in a message",                  status(QStringLiteral("<message>Für Käufer</message>")), true, false, false, "", "Für Käufer"},
    {"an element in an element",              status("<message><newversion>1</newversion></message>"), true, true, false, "", "<newversion>1</newversion>"},
    {"a status in a status ends with the first end", "<status><status><newversion>1</newversion></status></status>", true, true, false, "", ""},
    {"elements that overlap",                 status("<message>A<updateurl>B</message>C</updateurl>"), true, false, false, "B</message>C", "A<updateurl>B"},
    {"an element of another name",            status("<newversions>1</newversions><message>M</message>"), true, false, false, "", "M"},
    {"beside a status the old form is nothing",
                                              "Version = 2.0 <versionmessage>Old</versionmessage>" + status("<newversion>0</newversion>"), true, false, false, "", ""},
};
// clang-format on

TEST(UpdateAnswer, IsReadAsItsRulesSay) {
  for (const StatusRow& row : kStatusRows) {
    const UpdateAnswer answer = readUpdateAnswer(row.text);
    EXPECT_EQ(answer.isStatusValid, row.isValid) << row.rule;
    EXPECT_EQ(answer.isNewVersionOffered, row.isOffered) << row.rule;
    EXPECT_EQ(answer.isCurrent, row.isCurrent) << row.rule;
    EXPECT_EQ(answer.updateAddress.toStdString(), row.address) << row.rule;
    EXPECT_EQ(answer.message.toStdString(), row.message) << row.rule;
    EXPECT_FALSE(answer.isOldForm) << row.rule;
  }
}

struct OldRow {
  const char* rule;
  QString text;
  bool isOldForm;
  const char* message;
};

// clang-format off
const OldRow kOldRows[] = {
    {"version and message",             "Version = 2.0\r\n<versionmessage>Version 2 is here.</versionmessage>", true,  "Version 2 is here."},
    {"the message before the version",  "<versionmessage>M</versionmessage>\nVersion = 2.0",                    true,  "M"},
    {"an empty message",                "Version = 2.0 <versionmessage></versionmessage>",                      true,  ""},
    {"no version",                      "<versionmessage>M</versionmessage>",                                   false, nullptr},
    {"no blank in the mark",            "Version=2.0 <versionmessage>M</versionmessage>",                       false, nullptr},
    {"other letters in the mark",       "version = 2.0 <versionmessage>M</versionmessage>",                     false, nullptr},
    {"no message",                      "Version = 2.0",                                                        false, nullptr},
    {"no end of the message",           "Version = 2.0 <versionmessage>M",                                      false, nullptr},
    {"no beginning of the message",     "Version = 2.0 M</versionmessage>",                                     false, nullptr},
    {"the end before the beginning",    "Version = 2.0 </versionmessage><versionmessage>",                      false, nullptr},
    {"a message of the present form",   "Version = 2.0 <message>M</message>",                                   false, nullptr},
    {"beside a valid status",           "Version = 2.0 <versionmessage>M</versionmessage>" + status(kAll),      false, nullptr},
    {"beside a status that is too short", "Version = 2.0 <versionmessage>M</versionmessage>" + status(""),      false, nullptr},
};
// clang-format on

TEST(UpdateAnswer, OfTheOldFormNeedsItsMarkAndBothTagsAndNoStatus) {
  for (const OldRow& row : kOldRows) {
    const UpdateAnswer answer = readUpdateAnswer(row.text);
    EXPECT_EQ(answer.isOldForm, row.isOldForm) << row.rule;
    if (row.message != nullptr) {
      EXPECT_EQ(answer.message.toStdString(), row.message) << row.rule;
      EXPECT_FALSE(answer.isStatusValid) << row.rule;
      EXPECT_FALSE(answer.isNewVersionOffered) << row.rule;
    }
  }
}

TEST(UpdateAnswer, OfTheLargestSizeIsRead) {
  const QString filler(32767 - status(kAll).size(), u'.');
  EXPECT_TRUE(readUpdateAnswer(filler + status(kAll)).isNewVersionOffered);
  EXPECT_TRUE(readUpdateAnswer(status(filler + kAll)).isNewVersionOffered);
}

TEST(UpdateAnswer, OfManyUnfinishedTagsIsReadAtOnce) {
  EXPECT_FALSE(readUpdateAnswer(QStringLiteral("<status>").repeated(4000)).isStatusValid);
  EXPECT_TRUE(readUpdateAnswer(status(QStringLiteral("<message>").repeated(3000))).message.isEmpty());
}

struct QuestionRow {
  const char* rule;
  UpdateQuestion question;
  const char* address;
};

// clang-format off
const QuestionRow kQuestionRows[] = {
    {"keys in their order, at the version check's path",
     {"https://u.example", "Tessaloom", "2.1.7", 1, "English"},
     "https://u.example/version/versioncheck.asp?app=Tessaloom&version=2.1.7&appclass=1&language=English"},
    {"the current language by its name",
     {"https://u.example", "Tessaloom", "2.1.7", 1, "German"},
     "https://u.example/version/versioncheck.asp?app=Tessaloom&version=2.1.7&appclass=1&language=German"},
    {"the class in decimal digits",
     {"https://u.example", "Tessaloom", "2.1.7", 1234567, "German"},
     "https://u.example/version/versioncheck.asp?app=Tessaloom&version=2.1.7&appclass=1234567&language=German"},
    {"texts are encoded",
     {"https://u.example", "A&B C+D", "1#2?3/4", 0, "Portuguese (Brazil)"},
     "https://u.example/version/versioncheck.asp?app=A%26B%20C%2BD&version=1%232%3F3%2F4&appclass=0&language=Portuguese%20%28Brazil%29"},
    {"per cent signs and equals signs are encoded",
     {"https://u.example", "100%41", "a=b", 0, "%"},
     "https://u.example/version/versioncheck.asp?app=100%2541&version=a%3Db&appclass=0&language=%25"},
    {"umlauts are encoded as UTF-8",
     {"https://u.example", "Gebühren", "1", 0, "Français"},
     "https://u.example/version/versioncheck.asp?app=Geb%C3%BChren&version=1&appclass=0&language=Fran%C3%A7ais"},
    {"a language without a name",
     {"https://u.example", "Tessaloom", "1", 0, ""},
     "https://u.example/version/versioncheck.asp?app=Tessaloom&version=1&appclass=0&language="},
    {"a server at a port",
     {"http://127.0.0.1:8080", "Tessaloom", "1", 0, "English"},
     "http://127.0.0.1:8080/version/versioncheck.asp?app=Tessaloom&version=1&appclass=0&language=English"},
};
// clang-format on

TEST(UpdateQuestion, IsAskedAtItsAddress) {
  for (const QuestionRow& row : kQuestionRows)
    EXPECT_EQ(addressOf(row.question).toEncoded().toStdString(), row.address) << row.rule;
}

}  // namespace
