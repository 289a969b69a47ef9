#include <QDesktopServices>
#include <QtTest>

#include "desktop_opener.h"
#include "links.h"
#include "mail_link.h"

/// What is really handed to the desktop. The desktop's part is taken by the test.
class DesktopServicesTest : public QObject {
  Q_OBJECT

 public slots:
  void take(const QUrl& url) { m_taken << url.toEncoded(); }

 private slots:
  void initTestCase() {
    for (const char* scheme : kSchemes)
      QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), this, "take");
  }
  void cleanupTestCase() {
    for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
  }
  void init() { m_taken.clear(); }

  void onlyTheWebIsOpenedAsAPage_data() {
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("taken");
    QTest::newRow("https") << "https://a.example/b?c=d&e=f#g" << QByteArray("https://a.example/b?c=d&e=f#g");
    QTest::newRow("http") << "http://a.example/" << QByteArray("http://a.example/");
    QTest::newRow("a blank") << "https://a.example/b c" << QByteArray("https://a.example/b%20c");
    QTest::newRow("an escape stays as it is")
        << "https://a.example/?b=%26" << QByteArray("https://a.example/?b=%26");
    QTest::newRow("ftp") << "ftp://a.example/setup.exe" << QByteArray();
    QTest::newRow("a file") << "file:///usr/bin/setup" << QByteArray();
    QTest::newRow("a script") << "javascript:alert(1)" << QByteArray();
    QTest::newRow("a mail") << "mailto:a@b.example" << QByteArray();
    QTest::newRow("a path") << "/usr/bin/setup" << QByteArray();
    QTest::newRow("nothing") << "" << QByteArray();
  }

  void onlyTheWebIsOpenedAsAPage() {
    QFETCH(QString, address);
    QFETCH(QByteArray, taken);
    DesktopServices desktop;
    QCOMPARE(desktop.openWeb(address), !taken.isEmpty());
    QCOMPARE(m_taken, taken.isEmpty() ? QByteArrayList() : QByteArrayList{taken});
  }

  void mailsAreHandedOverEncoded_data() {
    QTest::addColumn<QString>("link");
    QTest::addColumn<QByteArray>("taken");
    BrandValues reseller;
    reseller.CompanyName = QStringLiteral("Smith & Söhne");
    reseller.SupportEmail = QStringLiteral("help@smith.example");
    reseller.SubscribeEmail = QStringLiteral("news@smith.example");
    QTest::newRow("feedback") << Links::feedbackMail(reseller, QStringLiteral("2.1.7"))
                              << QByteArray(
                                     "mailto:help@smith.example?subject=Comment%20RE%3A%20Tessaloom%202.1.7");
    QTest::newRow("mailing list")
        << Links::subscriptionMail(reseller)
        << QByteArray(
               "mailto:news@smith.example?subject=Subscribe%20Smith%20%26%20S%C3%B6hne"
               "%20Mailing%20List%20REF%3A%20Tessaloom");
    QTest::newRow("error report") << mailLink("errors@smith.example", "Tessaloom 2.1.7 Error", "A & B\n100 %")
                                  << QByteArray(
                                         "mailto:errors@smith.example?subject=Tessaloom%202.1.7%20Error"
                                         "&body=A%20%26%20B%0D%0A100%20%25");
  }

  void mailsAreHandedOverEncoded() {
    QFETCH(QString, link);
    QFETCH(QByteArray, taken);
    DesktopServices desktop;
    QVERIFY(desktop.openMail(link));
    QCOMPARE(m_taken, QByteArrayList{taken});
  }

  void aFileIsHandedOverByItsPath_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QByteArray>("taken");
    QTest::newRow("a path") << "/opt/tessaloom_help.htm" << QByteArray("file:///opt/tessaloom_help.htm");
    QTest::newRow("blanks and umlauts")
        << "/für Käufer/a.htm" << QByteArray("file:///f%C3%BCr%20K%C3%A4ufer/a.htm");
    QTest::newRow("a number sign, a question mark and a per cent sign")
        << "/a#b/c?d/100%41.htm" << QByteArray("file:///a%23b/c%3Fd/100%2541.htm");
  }

  void aFileIsHandedOverByItsPath() {
    QFETCH(QString, path);
    QFETCH(QByteArray, taken);
    DesktopServices desktop;
    QVERIFY(desktop.openFile(path));
    QCOMPARE(m_taken, QByteArrayList{taken});
  }

 private:
  static constexpr const char* kSchemes[] = {"https", "http", "ftp", "file", "javascript", "mailto", ""};

  QByteArrayList m_taken;
};

QTEST_MAIN(DesktopServicesTest)
#include "desktop_services_test.moc"
