// SPDX-License-Identifier: MIT
#include "tests/choice/boxprobes.h"
#include "tests/choice/drawnimages.h"
#include "tests/support/stricttest.h"

#include <QTest>
#include <array>
#include <climits>

using boxprobes::show;

namespace {

using DrawStyle = void (TavroCheckBox::*)(QPainter *, Qt::CheckState);
using DrawState = void (TavroCheckBox::*)(QPainter *);

constexpr std::array<DrawStyle, 5> StyleFunctions{&TavroCheckBox::drawEmptyTick, &TavroCheckBox::drawCrossTick,
                                                  &TavroCheckBox::drawEmptyCircle, &TavroCheckBox::drawCrossCircle,
                                                  &TavroCheckBox::drawEmptyTickBlock};
// Index: Qt::CheckState.
constexpr std::array<DrawState, 3> StateFunctions{&TavroCheckBox::drawUnchecked, &TavroCheckBox::drawPartiallyChecked,
                                                  &TavroCheckBox::drawChecked};

void addStyleRow(int style, const char *name, const char *unchecked, const char *partially, const char *checked)
{
    QTest::addRow("%s, unchecked", name) << style << 0 << QString::fromLatin1(unchecked);
    QTest::addRow("%s, partially checked", name) << style << 1 << QString::fromLatin1(partially);
    QTest::addRow("%s, checked", name) << style << 2 << QString::fromLatin1(checked);
}

void addStyleRows()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");

    addStyleRow(0, "empty or tick", "", "", "tick");
    addStyleRow(1, "cross or tick", "cross", "cross", "tick");
    addStyleRow(2, "empty or circle", "", "", "circle");
    addStyleRow(3, "cross or circle", "cross", "cross", "circle");
    addStyleRow(4, "empty, tick or block", "", "tick", "block");
}

// The name of the mark among the images, empty for none; something else than a name for any other drawing.
QString nameOf(const QVector<DrawnImage> &images)
{
    if (images.isEmpty())
        return {};
    if (images.size() == 1) {
        for (const char *name : {"tick", "cross", "circle", "block", "triangle"}) {
            if (images.first().image == markImage(QLatin1String(name), images.first().image.size()))
                return QLatin1String(name);
        }
    }
    return QStringLiteral("unknown");
}

} // namespace

/// The marks of each style in each state.
class TestTavroCheckBoxStyles : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void styles_data();
    void styles();
    void styleFunctions_data() { addStyleRows(); }
    void styleFunctions();
    void stateBeyond();
    void contentOne();
};

void TestTavroCheckBoxStyles::styles_data()
{
    addStyleRows();
    addStyleRow(5, "5", "", "", "");
    addStyleRow(-1, "-1", "", "", "");
    addStyleRow(INT_MAX, "the largest number", "", "", "");
    addStyleRow(INT_MIN, "the smallest number", "", "", "");
}

void TestTavroCheckBoxStyles::styles()
{
    QFETCH(int, style);
    QFETCH(int, state);
    QFETCH(QString, name);
    TavroCheckBox box;
    show(box, style, state);
    QCOMPARE(nameOf(imagesOf([&](QPainter *painter) { box.drawCheckState(painter); })), name);
    // The state that is asked for counts, not that of the check box.
    box.checkBx()->setCheckState(static_cast<Qt::CheckState>((state + 1) % 3));
    const DrawState draw = StateFunctions[static_cast<std::size_t>(state)];
    QCOMPARE(nameOf(imagesOf([&](QPainter *painter) { (box.*draw)(painter); })), name);
}

// Whatever style and state the object has itself.
void TestTavroCheckBoxStyles::styleFunctions()
{
    QFETCH(int, style);
    QFETCH(int, state);
    QFETCH(QString, name);
    const DrawStyle draw = StyleFunctions[static_cast<std::size_t>(style)];
    for (int own = -1; own <= 5; ++own) {
        TavroCheckBox box;
        show(box, own, (own + 1) % 3);
        const auto images =
            imagesOf([&](QPainter *painter) { (box.*draw)(painter, static_cast<Qt::CheckState>(state)); });
        QCOMPARE(nameOf(images), name);
    }
}

// Not checked, so it is drawn like the unchecked one.
void TestTavroCheckBoxStyles::stateBeyond()
{
    const std::array<QString, 5> expected{QString(), QStringLiteral("cross"), QString(), QStringLiteral("cross"),
                                          QString()};
    for (std::size_t style = 0; style < StyleFunctions.size(); ++style) {
        TavroCheckBox box;
        show(box, EmptyTick, 0);
        const auto images =
            imagesOf([&](QPainter *painter) { (box.*StyleFunctions[style])(painter, static_cast<Qt::CheckState>(3)); });
        QCOMPARE(nameOf(images), expected[style]);
    }
}

void TestTavroCheckBoxStyles::contentOne()
{
    TavroCheckBox box;
    show(box, EmptyTickBlock, 0);
    const auto drawn = [&] { return nameOf(imagesOf([&](QPainter *painter) { box.drawCheckState(painter); })); };
    box.setContentData(1);
    QCOMPARE(drawn(), QStringLiteral("block"));
    box.checkBx()->setCheckState(Qt::PartiallyChecked);
    QCOMPARE(drawn(), QStringLiteral("tick"));
    QCOMPARE(box.contentData(), QVariant(1));
}

QTEST_MAIN(TestTavroCheckBoxStyles)
#include "tst_tavrocheckboxstyles.moc"
