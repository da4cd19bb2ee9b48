// SPDX-License-Identifier: MIT
#include "core/tavroprototype.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"
#include "tests/support/prototypesettings.h"
#include "tests/support/stricttest.h"

#include <QSignalSpy>

namespace {

using P = TavroPrototype;

constexpr bool Marks = prototypesettings::Marks;
constexpr bool DoesNotMark = prototypesettings::DoesNotMark;

// Lines and rectangles share the names of their settings, not a class.
template <typename T>
QVector<Setting<T>> strokeSettings()
{
    return {
        setting<T>("lineWidthPix", &T::lineWidthPix, &T::setLineWidthPix, 1.0, 2.75, DoesNotMark),
        setting<T>("lineWidthPhy", &T::lineWidthPhy, &T::setLineWidthPhy, 0.25, 0.7, Marks),
        setting<T>("lineColor", &T::lineColor, &T::setLineColor, 0xFF000000U, 0x80FF0000U, Marks),
        setting<T>("lineStyle", &T::lineStyle, &T::setLineStyle, Qt::SolidLine, Qt::DashDotLine, Marks),
    };
}

} // namespace

/// Every getter and setter pair: initial value, what is stored, and whether the object counts as modified.
class TestPrototypeSettings : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void prototype_data() { addSettingRows(prototypesettings::all()); }
    void prototype();
    void line_data() { addSettingRows(strokeSettings<TavroLine>()); }
    void line();
    void rectangle_data() { addSettingRows(strokeSettings<TavroRect>()); }
    void rectangle();
    void strokeWidthsAreNotConverted();
    void remainingInitialValues();
    void bindingMarksModified();
    void binding();
    void identifierIsTheToolTip();
    void settersTouchTheirFieldOnly();
    void operationsDoNotMark();
};

void TestPrototypeSettings::prototype()
{
    QFETCH(int, index);
    checkSetting(prototypesettings::all().at(index));
}

void TestPrototypeSettings::line()
{
    QFETCH(int, index);
    checkSetting(strokeSettings<TavroLine>().at(index));
}

void TestPrototypeSettings::rectangle()
{
    QFETCH(int, index);
    checkSetting(strokeSettings<TavroRect>().at(index));
}

void TestPrototypeSettings::strokeWidthsAreNotConverted()
{
    TavroLine line;
    line.setLineWidthPix(8);
    QCOMPARE(line.lineWidthPhy(), 0.25);
    line.setLineWidthPhy(3);
    QCOMPARE(line.lineWidthPix(), 8.0);
    TavroRect rect;
    rect.setLineWidthPhy(3);
    QCOMPARE(rect.lineWidthPix(), 1.0);
    rect.setLineWidthPix(8);
    QCOMPARE(rect.lineWidthPhy(), 3.0);
}

void TestPrototypeSettings::remainingInitialValues()
{
    const P object;
    QCOMPARE(static_cast<int>(object.objType()), -1);
    QCOMPARE(object.isModified(), false);
    QCOMPARE(object.isBindingToDB(), false);
    QVERIFY(object.contentData().isNull());
    QVERIFY(object.presetData().isNull());
    QCOMPARE(object.phyPos(), QPointF());
    QCOMPARE(object.phyWidth(), 0.0);
    QCOMPARE(object.phyHeight(), 0.0);
    QCOMPARE(object.toolTip(), QString());
    QCOMPARE(object.parentItem(), nullptr);
    QCOMPARE(object.zValue(), 0.0);
}

void TestPrototypeSettings::bindingMarksModified()
{
    P object;
    object.bindToDB(QStringLiteral("cheques"), QStringLiteral("payee"));
    QVERIFY(object.isModified());
    object.setIsModified(false);
    object.unbindToDB();
    QVERIFY(object.isModified());
    object.setIsModified(false);
    object.bindToDB({QStringLiteral("cheques"), QStringLiteral("payee")});
    QVERIFY(object.isModified());
}

void TestPrototypeSettings::binding()
{
    P object;
    object.bindToDB(QStringLiteral("cheques"), QString());
    QVERIFY(!object.isBindingToDB());
    object.bindToDB(QString(), QStringLiteral("payee"));
    QVERIFY(!object.isBindingToDB());
    object.bindToDB(_Database_Table_Col{QStringLiteral("vouchers"), QStringLiteral("amount")});
    QVERIFY(object.isBindingToDB());
    QCOMPARE(object.tableColDB().table, QStringLiteral("vouchers"));
    QCOMPARE(object.tableColDB().column, QStringLiteral("amount"));
    object.unbindToDB();
    QVERIFY(!object.isBindingToDB());
    QCOMPARE(object.tableDB(), QString());
    QCOMPARE(object.columnDB(), QString());
}

void TestPrototypeSettings::identifierIsTheToolTip()
{
    P object;
    QSignalSpy changed(&object, &P::tavroIDChanged);
    // Listeners read the identifier; the mark and the tool tip follow.
    QString seen;
    QString seenToolTip;
    bool seenMark = true;
    connect(&object, &P::tavroIDChanged, [&] {
        seen = object.tavroID();
        seenToolTip = object.toolTip();
        seenMark = object.isModified();
    });
    object.setTavroID(QStringLiteral("payee"));
    QCOMPARE(seen, QStringLiteral("payee"));
    QCOMPARE(seenToolTip, QString());
    QCOMPARE(seenMark, false);
    QCOMPARE(object.toolTip(), QStringLiteral("payee"));
    object.setTavroID(QStringLiteral("payee"));
    QCOMPARE(changed.count(), 2);
}

// The two rectangles, the two physical sizes and the binding have fields of their own.
void TestPrototypeSettings::settersTouchTheirFieldOnly()
{
    const QVector<Setting<P>> table = prototypesettings::all();
    const QStringList sharing{QStringLiteral("objX"),    QStringLiteral("objY"),    QStringLiteral("objPos"),
                              QStringLiteral("width"),   QStringLiteral("height"),  QStringLiteral("boundingRect"),
                              QStringLiteral("tableDB"), QStringLiteral("columnDB")};
    for (const Setting<P> &written : table) {
        P object;
        written.write(object);
        for (const Setting<P> &other : table) {
            if (other.name == written.name ||
                (sharing.contains(QLatin1String(written.name)) && sharing.contains(QLatin1String(other.name))))
                continue;
            QVERIFY2(other.isInitial(object),
                     qPrintable(
                         QStringLiteral("%1 changed %2").arg(QLatin1String(written.name), QLatin1String(other.name))));
        }
    }
}

// Only settings are saved with the form.
void TestPrototypeSettings::operationsDoNotMark()
{
    P object;
    object.setBoundingRect(QRectF(0, 0, 100, 60));
    object.setRotateAngle(30);
    object.setSelected(true);
    object.setPos(5, 5);
    object.resize(Handle_Right, QPointF(150, 0));
    object.moveObjBy(QPointF(1, 1));
    object.setObjCenter(QPointF(1, 1));
    object.updateGeometry();
    object.updateObjRotation();
    object.setSelectableAndMovable(false);
    object.onLockedChanged();
    object.showResizerHandle(true);
    object.showDashRect(true);
    object.setLeadingFlag(false);
    object.bringObjToFront();
    object.raiseObjUp();
    object.lowerObjDown();
    object.bringObjToBack();
    object.renew();
    QVERIFY(!object.isModified());
}

QTEST_MAIN(TestPrototypeSettings)
#include "tst_prototypesettings.moc"
