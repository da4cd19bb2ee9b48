// SPDX-License-Identifier: MIT
// The opened list of a combo box object, as the user sees it on a real screen.
#include "tests/choice/combxform.h"
#include "tests/support/stricttest.h"

#include <QScreen>

using namespace combx;

namespace {

QImage screen(const QRect &part)
{
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, part.x(), part.y(), part.width(), part.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

// The list as the screen shows it is the list as it paints itself.
bool isSeenWhole(QWidget &list)
{
    const QImage painted = list.grab().toImage().convertToFormat(QImage::Format_RGB32);
    return screen(list.geometry()) == painted;
}

} // namespace

class TavroCombxPopupTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void isAWindow();
};

void TavroCombxPopupTest::isAWindow()
{
    CombxForm form;
    QVERIFY(form.isReady());
    const int items = form.scene().items().size();
    QVERIFY(form.openList());
    QCOMPARE(form.scene().items().size(), items);
    QCOMPARE(form.list()->isWindow(), true);
    QVERIFY(form.list()->graphicsProxyWidget() == nullptr);
    qDebug() << form.list()->geometry() << form.onScreen({0, 0}) << form.box()->geometry() << form.view().geometry();
    QTRY_VERIFY(isSeenWhole(*form.list()));
    QSignalSpy chosen(form.object, &TavroCombx::currentIndexChanged);
    form.pick(2);
    QTRY_VERIFY(!form.list()->isVisible());
    qDebug() << chosen;
}

QTEST_MAIN(TavroCombxPopupTest)
#include "tst_tavrocombxpopup.moc"
