// SPDX-License-Identifier: MIT
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"
#include "tests/support/imagecompare.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// Lines and rectangles as they look, beside images kept from before.
class TestGraphicImages : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void line_data();
    void line();
    void rectangle_data();
    void rectangle();
    void differencesAreSeen();

private:
    void addStrokeRows();
};

void TestGraphicImages::addStrokeRows()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("width");
    QTest::addColumn<unsigned>("color");
    QTest::addColumn<int>("style");
}

void TestGraphicImages::line_data()
{
    addStrokeRows();
    QTest::newRow("line-thin") << QSizeF(40, 20) << 1.0 << 0xFF000000U << 1;
    QTest::newRow("line-up-wide") << QSizeF(-40, 20) << 4.5 << 0xFF1BA39CU << 1;
    QTest::newRow("line-level-dashed") << QSizeF(44, 0) << 2.0 << 0x80FF0000U << 2;
}

void TestGraphicImages::line()
{
    QFETCH(QSizeF, size);
    QFETCH(double, width);
    QFETCH(unsigned, color);
    QFETCH(int, style);
    TavroLine line;
    line.setBoundingRect(QRectF(QPointF(7, 9), size));
    line.setLineWidthPix(width);
    line.setLineColor(color);
    line.setLineStyle(static_cast<Qt::PenStyle>(style));
    const QString found = imagecompare::difference(imagecompare::painted(line, QSize(48, 32)),
                                                   QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

void TestGraphicImages::rectangle_data()
{
    addStrokeRows();
    QTest::newRow("rect-thin") << QSizeF(40, 20) << 1.0 << 0xFF000000U << 1;
    QTest::newRow("rect-wide-mitred") << QSizeF(-36, 18) << 6.0 << 0xFF1BA39CU << 1;
    QTest::newRow("rect-dotted") << QSizeF(40, 20) << 2.0 << 0x80FF0000U << 3;
}

void TestGraphicImages::rectangle()
{
    QFETCH(QSizeF, size);
    QFETCH(double, width);
    QFETCH(unsigned, color);
    QFETCH(int, style);
    TavroRect rect;
    rect.setBoundingRect(QRectF(QPointF(7, 9), size));
    rect.setLineWidthPix(width);
    rect.setLineColor(color);
    rect.setLineStyle(static_cast<Qt::PenStyle>(style));
    const QString found = imagecompare::difference(imagecompare::painted(rect, QSize(48, 32)),
                                                   QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY2(found.isEmpty(), qPrintable(found));
}

// The comparison itself can fail, and then shows what it saw.
void TestGraphicImages::differencesAreSeen()
{
    const QTemporaryDir folder;
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder.path()));
    TavroRect rect;
    rect.setBoundingRect(QRectF(0, 0, 40, 20));
    rect.setLineWidthPix(3);
    const QString name = QStringLiteral("rect-thin");
    const QString other = imagecompare::difference(imagecompare::painted(rect, QSize(48, 32)), name);
    const QStringList written = QDir().entryList(QDir::Files, QDir::Name);
    const QString smaller = imagecompare::difference(QImage(3, 3, QImage::Format_RGB32), name);
    const QString unknown = imagecompare::difference(QImage(), QStringLiteral("no such image"));
    QDir::setCurrent(before);
    QVERIFY(!other.isEmpty());
    QVERIFY(!smaller.isEmpty());
    QVERIFY(!unknown.isEmpty());
    QCOMPARE(written,
             QStringList({QStringLiteral("rect-thin-actual.png"), QStringLiteral("rect-thin-difference.png")}));
}

QTEST_MAIN(TestGraphicImages)
#include "tst_graphicimages.moc"
