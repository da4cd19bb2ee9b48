// SPDX-License-Identifier: MIT
#include "desk/translations.h"

#include "tests/support/stricttest.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

class TranslationsTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void textsOfTheLibrary_data();
    void textsOfTheLibrary();
    void textsOfQt();
};

namespace {

QList<QTranslator *> installed()
{
    return qApp->findChildren<QTranslator *>();
}

} // namespace

void TranslationsTest::cleanup()
{
    qDeleteAll(installed());
    StrictTest::cleanup();
}

void TranslationsTest::textsOfTheLibrary_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("today");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("今天");
    QTest::newRow("Chinese elsewhere") << QStringLiteral("zh_TW") << QStringLiteral("Today");
    QTest::newRow("English") << QStringLiteral("en_US") << QStringLiteral("Today");
    QTest::newRow("service") << QStringLiteral("C") << QStringLiteral("Today");
}

// Qt's translations are missing in the empty folder, as on many a server.
void TranslationsTest::textsOfTheLibrary()
{
    const QTemporaryDir empty;
    QFETCH(QString, locale);
    QFETCH(QString, today);
    translations::install(*qApp, QLocale(locale), empty.path());
    QCOMPARE(QCoreApplication::translate("CalendarWidget", "Today"), today);
    QCOMPARE(installed().size(), today == QLatin1String("Today") ? 0 : 1);
}

void TranslationsTest::textsOfQt()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("qtbase_zh_CN.qm"));
    QVERIFY(QFile::copy(QStringLiteral(TAVRO_TRANSLATIONS "/tavro_zh_CN.qm"), file));
    translations::install(*qApp, QLocale(QStringLiteral("zh_CN")), folder.path());
    QCOMPARE(installed().size(), 2);
    QCOMPARE(installed().first()->filePath(), file);
    translations::install(*qApp, QLocale(QStringLiteral("de_DE")), folder.path());
    QCOMPARE(installed().size(), 2);
}

QTEST_MAIN(TranslationsTest)
#include "tst_translations.moc"
