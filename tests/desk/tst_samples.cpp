// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "desk/checking/checking.h"
#include "desk/fonts.h"
#include "desk/formreader.h"
#include "desk/formwriter.h"
#include "desk/record.h"
#include "desk/settings/catalogue.h"
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
    void applicationFormHasEveryKind();
    void emptyApplicationForm();

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

void SamplesTest::applicationFormHasEveryKind()
{
    const formreader::Result read = formreader::read(folder().filePath(QStringLiteral("application-form.tform")));
    QVERIFY2(read.form, qPrintable(read.error));
    QStringList missing = catalogue::kindNames();
    for (const Form::Entry &entry : read.form->entries)
        missing.removeAll(catalogue::nameOf(entry.object->objType()));
    QCOMPARE(missing, QStringList());
}

// Without its record the form says what it wants: each choice and each field once.
void SamplesTest::emptyApplicationForm()
{
    const formreader::Result read = formreader::read(folder().filePath(QStringLiteral("application-form.tform")));
    QVERIFY2(read.form, qPrintable(read.error));
    QStringList problems;
    for (const QString &problem : checking::problems(*read.form))
        problems.append(problem.section(QLatin1Char(' '), 1));
    const QString missing = QStringLiteral("\"%1\": required, but missing");
    const QString unticked = QStringLiteral("\"%1\": required, but not ticked");
    const QString open = QStringLiteral("\"%1\": required, but nothing in group \"%2\" is ticked");
    const auto of = [](const QString &problem, const char *id) { return problem.arg(QLatin1String(id)); };
    QCOMPARE(problems,
             QStringList(
                 {of(missing, "applicationNumber"), open.arg(QStringLiteral("titleMr"), QStringLiteral("title")),
                  of(missing, "name"), of(missing, "birth"), of(missing, "identity"), of(missing, "mobile"),
                  of(missing, "residence"), of(missing, "address"),
                  open.arg(QStringLiteral("employed"), QStringLiteral("employment")), of(missing, "income"),
                  of(missing, "purpose"), of(missing, "term"), open.arg(QStringLiteral("day5"), QStringLiteral("day")),
                  of(missing, "amount"), of(missing, "amountInWords"), of(unticked, "truthful"),
                  of(unticked, "inquiry"), of(missing, "signature"), of(missing, "signed")}));
}

QTEST_MAIN(SamplesTest)
#include "tst_samples.moc"
