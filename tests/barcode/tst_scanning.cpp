// SPDX-License-Identifier: MIT
// Prints symbols of every symbology that a program can read, and has them read.
#include "tests/barcode/printedsymbols.h"
#include "tests/support/stricttest.h"

#include <QTemporaryDir>
#include <QTest>
#include <cstdio>

using decoders::Program;
using decoders::Reading;
using printedsymbols::Expected;
using printedsymbols::PrintedSymbol;

/// One print of one symbol, and what each program has to read in it.
class TestScanning : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void scans_data();
    void scans();
    void cleanupTestCase();

private:
    struct Print
    {
        int symbol;
        int resolution;
        QString file;
    };

    QTemporaryDir m_folder;
    QVector<PrintedSymbol> m_symbols;
    QVector<Print> m_prints;
    QHash<int, decoders::Answer> m_answers; ///< by program
    QHash<int, QStringList> m_read;         ///< by symbol, resolutions at which all programs read it
};

void TestScanning::initTestCase()
{
    QVERIFY(m_folder.isValid());
    m_symbols = printedsymbols::all();
    QHash<int, QStringList> files;
    for (int symbol = 0; symbol < m_symbols.size(); ++symbol) {
        for (const int resolution : m_symbols.at(symbol).resolutions) {
            const QString file = m_folder.filePath(QStringLiteral("%1-%2.png").arg(symbol).arg(resolution));
            QVERIFY(paper::printed(m_symbols.at(symbol).sheet, resolution).save(file));
            m_prints.append({symbol, resolution, file});
            for (const Expected &expected : m_symbols.at(symbol).expected)
                files[static_cast<int>(expected.program)].append(file);
        }
    }
    for (const Program program : {Program::Zbar, Program::Zxing, Program::ZxingPure, Program::Dmtx}) {
        const int key = static_cast<int>(program);
        m_answers[key] = decoders::read(program, files.value(key));
        QVERIFY2(m_answers.value(key).error.isEmpty(), qPrintable(m_answers.value(key).error));
    }
}

void TestScanning::scans_data()
{
    QTest::addColumn<int>("print");
    for (int i = 0; i < m_prints.size(); ++i)
        QTest::addRow("%s, %d dpi", qPrintable(m_symbols.at(m_prints.at(i).symbol).name), m_prints.at(i).resolution)
            << i;
}

void TestScanning::scans()
{
    QFETCH(int, print);
    const Print &printed = m_prints.at(print);
    for (const Expected &expected : m_symbols.at(printed.symbol).expected) {
        const QVector<Reading> readings =
            m_answers.value(static_cast<int>(expected.program)).readings.value(printed.file);
        QVERIFY2(readings == expected.readings,
                 qPrintable(QStringLiteral("%1 reads %2 instead of %3")
                                .arg(decoders::nameOf(expected.program), decoders::inWords(readings),
                                     decoders::inWords(expected.readings))));
    }
    m_read[printed.symbol].append(QString::number(printed.resolution));
}

void TestScanning::cleanupTestCase()
{
    for (int i = 0; i < m_symbols.size(); ++i) {
        const PrintedSymbol &symbol = m_symbols.at(i);
        QStringList programs;
        for (const Expected &expected : symbol.expected)
            programs.append(decoders::nameOf(expected.program));
        std::printf("%-44s %6.1f x %5.1f mm  %-26s %s\n", qPrintable(symbol.name), symbol.sheet.size.width(),
                    symbol.sheet.size.height(), qPrintable(programs.join(QStringLiteral(", "))),
                    m_read.contains(i) ? qPrintable(m_read.value(i).join(QStringLiteral(", ")) + QStringLiteral(" dpi"))
                                       : "-");
    }
}

QTEST_MAIN(TestScanning)
#include "tst_scanning.moc"
