// SPDX-License-Identifier: MIT
#include "desk/checking.h"
#include "desk/fonts.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/record.h"
#include "tests/desk/deskforms.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QTest>

// The samples are what a designer starts from and what the demonstration prints: they have no problem of any kind.
class SamplesTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fonts::substituteMissing(); }
    void thereAreSamples();
    void sample_data();
    void sample();
    void everyRecordHasItsForm();

private:
    static QDir folder() { return QDir(QStringLiteral(TAVRO_SAMPLES)); }
    static QStringList names(const char *pattern) { return folder().entryList({QLatin1String(pattern)}, QDir::Files); }
};

void SamplesTest::thereAreSamples()
{
    QVERIFY(!names("*.tform").isEmpty());
}

void SamplesTest::sample_data()
{
    QTest::addColumn<QString>("form");
    for (const QString &name : names("*.tform"))
        QTest::newRow(qPrintable(name)) << folder().filePath(name);
}

void SamplesTest::sample()
{
    QFETCH(QString, form);
    const formreader::Result read = formreader::read(form);
    QVERIFY2(read.form, qPrintable(read.error));
    QCOMPARE(read.form->unknownNames(), QStringList());
    QVERIFY2(formwriter::toBytes(*read.form) == deskforms::content(form), "the file is not in normal form");

    const QString data = form.chopped(int(qstrlen(".tform"))) + QStringLiteral(".json");
    const record::Result filled = record::fill(read.form.get(), data);
    QCOMPARE(filled.error, QString());
    QCOMPARE(filled.unknownIds, QStringList());
    QCOMPARE(checking::problems(*read.form), QStringList());
}

void SamplesTest::everyRecordHasItsForm()
{
    const QStringList forms = names("*.tform");
    for (const QString &name : names("*.json"))
        QVERIFY2(forms.contains(name.chopped(int(qstrlen(".json"))) + QStringLiteral(".tform")), qPrintable(name));
}

QTEST_MAIN(SamplesTest)
#include "tst_samples.moc"
