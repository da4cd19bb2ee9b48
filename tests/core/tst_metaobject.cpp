// SPDX-License-Identifier: MIT
#include "core/tavrotext.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"
#include "tests/support/stricttest.h"
#include "tests/support/virtualslots.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <QTest>

namespace {

struct PropertyRow
{
    const char *name;
    const char *type;
    bool writable;
    const char *notify;
};

const QVector<PropertyRow> PrototypeProperties{
    {"objType", "ObjType", false, ""},
    {"paintMode", "Paint_Mode", true, "paintModeChanged"},
    {"tavroID", "QString", true, "tavroIDChanged"},
    {"contentData", "QVariant", true, "contentDataChanged"},
    {"isLocked", "bool", true, "isLockedChanged"},
    {"boundingRect", "QRectF", true, "boundingRectChanged"},
};

const QVector<PropertyRow> TextProperties{
    {"prefix", "QString", true, "prefixChanged"},
    {"font", "QFont", true, "fontChanged"},
    {"fontFamily", "QString", true, "fontFamilyChanged"},
    {"fontPtSz", "double", true, "fontPtSzChanged"},
    {"horAlign", "Qt::Alignment", true, "horAlignChanged"},
    {"verAlign", "Qt::Alignment", true, "verAlignChanged"},
    {"textFillingRule", "Text_Filling_Rule", true, "textFillingRuleChanged"},
};

QString line(const QByteArray &name, const QByteArray &type, bool writable, const QByteArray &notify)
{
    const QByteArrayList words{name, type, writable ? "writable" : "fixed", notify};
    return QString::fromLatin1(words.join(' '));
}

QStringList propertiesOf(const QMetaObject &meta)
{
    QStringList lines;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        lines.append(line(property.name(), property.typeName(), property.isWritable(), property.notifySignal().name()));
    }
    return lines;
}

QStringList linesOf(const QVector<PropertyRow> &rows)
{
    QStringList lines;
    for (const PropertyRow &row : rows)
        lines.append(line(row.name, row.type, row.writable, row.notify));
    return lines;
}

QStringList signalsOf(const QMetaObject &meta)
{
    QStringList found;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            found.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    return found;
}

#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
// Reaches the protected operations.
class PrototypeProbe : public TavroPrototype
{
public:
    static QVector<std::ptrdiff_t> operationSlots()
    {
        return {slotOf(&TavroPrototype::type),
                slotOf(&TavroPrototype::renew),
                slotOf(&TavroPrototype::boundingRect),
                slotOf(&TavroPrototype::setBoundingRect),
                slotOf(&TavroPrototype::setContentData),
                slotOf(&TavroPrototype::setPresetData),
                slotOf(&TavroPrototype::shape),
                slotOf(&TavroPrototype::setPaintMode),
                slotOf(&TavroPrototype::resize),
                slotOf(&TavroPrototype::isValid),
                slotOf(&TavroPrototype::setupReszHandleAndDashRect),
                slotOf(&TavroPrototype::designPaint),
                slotOf(&TavroPrototype::inputPaint),
                slotOf(&TavroPrototype::printPaint),
                slotOf(&TavroPrototype::paint),
                slotOf(&PrototypeProbe::itemChange),
                slotOf(&PrototypeProbe::hoverEnterEvent),
                slotOf(&PrototypeProbe::hoverLeaveEvent)};
    }
    // The last slot of QObject, and so of QGraphicsObject.
    static std::ptrdiff_t lastSlotBefore() { return slotOf(&PrototypeProbe::disconnectNotify); }
};

QVector<std::ptrdiff_t> textSlots()
{
    return {slotOf(&TavroText::setTextFillingRule), slotOf(&TavroText::setPrefix), slotOf(&TavroText::setFont),
            slotOf(&TavroText::setFontFamily), slotOf(&TavroText::adjustTextStyle)};
}
#endif

} // namespace

/// What hosts reach through the meta-object, and the order in which virtual operations stand.
class TestMetaObject : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void properties();
    void signalOrder();
    void prototypeThroughProperties();
    void textThroughProperties();
    void enumerationsTakeIntegers();
    void notifySignals_data();
    void notifySignals();
    void slotOrder();
};

void TestMetaObject::properties()
{
    QCOMPARE(propertiesOf(TavroPrototype::staticMetaObject), linesOf(PrototypeProperties));
    QCOMPARE(propertiesOf(TavroText::staticMetaObject), linesOf(TextProperties));
    QCOMPARE(TavroPrototype::staticMetaObject.superClass(), &QGraphicsObject::staticMetaObject);
    QCOMPARE(TavroText::staticMetaObject.superClass(), &TavroPrototype::staticMetaObject);
    // Lines and rectangles have no properties beyond the base.
    for (const QMetaObject *graphic : {&TavroLine::staticMetaObject, &TavroRect::staticMetaObject}) {
        QCOMPARE(graphic->superClass(), &TavroPrototype::staticMetaObject);
        QCOMPARE(propertiesOf(*graphic) + signalsOf(*graphic), QStringList());
    }
}

void TestMetaObject::signalOrder()
{
    QCOMPARE(signalsOf(TavroPrototype::staticMetaObject),
             QStringList({QStringLiteral("paintModeChanged()"), QStringLiteral("tavroIDChanged()"),
                          QStringLiteral("boundingRectChanged()"), QStringLiteral("contentDataChanged()"),
                          QStringLiteral("isLockedChanged(bool)")}));
    QCOMPARE(signalsOf(TavroText::staticMetaObject),
             QStringList({QStringLiteral("verAlignChanged()"), QStringLiteral("horAlignChanged()"),
                          QStringLiteral("textFillingRuleChanged()"), QStringLiteral("prefixChanged()"),
                          QStringLiteral("fontChanged()"), QStringLiteral("fontFamilyChanged()"),
                          QStringLiteral("fontPtSzChanged()")}));
    // Called by hosts as a plain member.
    QCOMPARE(TavroPrototype::staticMetaObject.indexOfMethod("onLockedChanged()"), -1);
}

void TestMetaObject::prototypeThroughProperties()
{
    TavroLine object;
    QCOMPARE(object.property("objType").value<ObjType>(), Obj_Line);
    QCOMPARE(object.property("objType").toInt(), 1);
    QVERIFY(!object.setProperty("objType", QVariant::fromValue(Obj_Rect)));
    QVERIFY(object.setProperty("paintMode", QVariant::fromValue(Paint_Print)));
    QCOMPARE(object.paintMode(), Paint_Print);
    QCOMPARE(object.property("paintMode").toInt(), 2);
    QVERIFY(object.setProperty("tavroID", QStringLiteral("payee")));
    QCOMPARE(object.tavroID(), QStringLiteral("payee"));
    QVERIFY(object.setProperty("contentData", 12));
    QCOMPARE(object.contentData(), QVariant(12));
    QVERIFY(object.setProperty("isLocked", true));
    QCOMPARE(object.isLocked(), true);
    QVERIFY(object.setProperty("boundingRect", QRectF(1, 2, -3, 4)));
    QCOMPARE(object.boundingRect(), QRectF(1, 2, -3, 4));
    for (const PropertyRow &row : PrototypeProperties)
        QVERIFY2(object.property(row.name).isValid(), row.name);
    QCOMPARE(object.property("tavroID").toString(), QStringLiteral("payee"));
    QCOMPARE(object.property("contentData").toInt(), 12);
    QCOMPARE(object.property("isLocked").toBool(), true);
    QCOMPARE(object.property("boundingRect").toRectF(), QRectF(1, 2, -3, 4));
}

void TestMetaObject::textThroughProperties()
{
    TavroText object;
    QVERIFY(object.setProperty("prefix", QStringLiteral("No. ")));
    QCOMPARE(object.prefix(), QStringLiteral("No. "));
    QVERIFY(object.setProperty("fontFamily", QStringLiteral("DejaVu Sans")));
    QCOMPARE(object.fontFamily(), QStringLiteral("DejaVu Sans"));
    QVERIFY(object.setProperty("fontPtSz", 10.5));
    QCOMPARE(object.fontPtSz(), 10.5);
    QVERIFY(object.setProperty("horAlign", QVariant::fromValue(Qt::Alignment(Qt::AlignRight))));
    QCOMPARE(object.horAlign(), Qt::Alignment(Qt::AlignRight));
    QVERIFY(object.setProperty("verAlign", QVariant::fromValue(Qt::Alignment(Qt::AlignBottom))));
    QCOMPARE(object.verAlign(), Qt::Alignment(Qt::AlignBottom));
    QVERIFY(object.setProperty("textFillingRule", QVariant::fromValue(Fill_NoWrap)));
    QCOMPARE(object.textFillingRule(), Fill_NoWrap);
    const QFont font(QStringLiteral("DejaVu Serif"), 33);
    QVERIFY(object.setProperty("font", font));
    QCOMPARE(object.font(), font);

    QCOMPARE(object.property("prefix").toString(), QStringLiteral("No. "));
    QCOMPARE(object.property("fontFamily").toString(), QStringLiteral("DejaVu Sans"));
    QCOMPARE(object.property("fontPtSz").toDouble(), 10.5);
    QCOMPARE(object.property("horAlign").value<Qt::Alignment>(), Qt::Alignment(Qt::AlignRight));
    QCOMPARE(object.property("verAlign").value<Qt::Alignment>(), Qt::Alignment(Qt::AlignBottom));
    QCOMPARE(object.property("textFillingRule").value<Text_Filling_Rule>(), Fill_NoWrap);
    QCOMPARE(object.property("font").value<QFont>(), font);
}

// Forms are stored with the numbers, also with numbers that name nothing.
void TestMetaObject::enumerationsTakeIntegers()
{
    TavroText object;
    QVERIFY(object.setProperty("paintMode", 1));
    QCOMPARE(object.paintMode(), Paint_Input);
    QVERIFY(object.setProperty("paintMode", 7));
    QCOMPARE(static_cast<int>(object.paintMode()), 7);
    QVERIFY(object.setProperty("textFillingRule", 1));
    QCOMPARE(object.textFillingRule(), Fill_Shrink);
    QVERIFY(object.setProperty("textFillingRule", 5));
    QCOMPARE(object.property("textFillingRule").toInt(), 5);
    QCOMPARE(TavroPrototype().property("objType").toInt(), -1);
}

void TestMetaObject::notifySignals_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("notified");

    const auto row = [](const char *name, const QVariant &value, int notified) {
        QTest::newRow(name) << QByteArray(name) << value << notified;
    };
    row("paintMode", QVariant::fromValue(Paint_Input), 1);
    row("tavroID", QStringLiteral("payee"), 1);
    row("contentData", 12, 1);
    row("isLocked", true, 0); // the host's to emit
    row("boundingRect", QRectF(1, 2, 3, 4), 1);
    row("prefix", QStringLiteral("No. "), 1);
    row("font", QFont(QStringLiteral("DejaVu Serif"), 33), 1);
    row("fontFamily", QStringLiteral("DejaVu Sans"), 1);
    row("fontPtSz", 10.5, 1);
    row("horAlign", QVariant::fromValue(Qt::Alignment(Qt::AlignRight)), 1);
    row("verAlign", QVariant::fromValue(Qt::Alignment(Qt::AlignBottom)), 1);
    row("textFillingRule", QVariant::fromValue(Fill_NoWrap), 1);
}

void TestMetaObject::notifySignals()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(int, notified);
    TavroText object;
    const QMetaObject *meta = object.metaObject();
    QSignalSpy spy(&object, meta->property(meta->indexOfProperty(property)).notifySignal());
    QVERIFY(spy.isValid());
    object.setProperty(property, value);
    QCOMPARE(spy.count(), notified);
    // An equal value is stored and told like any other.
    object.setProperty(property, value);
    QCOMPARE(spy.count(), 2 * notified);
}

void TestMetaObject::slotOrder()
{
#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
    const QVector<std::ptrdiff_t> found = PrototypeProbe::operationSlots() + textSlots();
    QCOMPARE(found.size(), 18 + 5);
    QVector<std::ptrdiff_t> expected;
    for (int i = 0; i < found.size(); ++i)
        expected.append(PrototypeProbe::lastSlotBefore() + 1 + i);
    QCOMPARE(found, expected);
#else
    QSKIP("slots are read off pointers to members on x86-64 only");
#endif
}

QTEST_MAIN(TestMetaObject)
#include "tst_metaobject.moc"
