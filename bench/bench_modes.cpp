// SPDX-License-Identifier: MIT
#include "bench/ratioreport.h"
#include "core/controlfactory.h"
#include "core/tavroprototype.h"

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSplitter>
#include <cstdio>

// What it costs to turn a whole form from design to filling in, and on to paper.

namespace {

constexpr int Sizes[] = {1000, 2000, 4000};
constexpr int Columns = 10;
constexpr QSizeF Cell(260, 30);

QRectF cellAt(int index)
{
    return {QPointF(index % Columns * Cell.width(), index / Columns * Cell.height()), Cell - QSizeF(4, 4)};
}

ObjType kindAt(int index)
{
    return static_cast<ObjType>(index % Obj_Table + Obj_Line);
}

QByteArray stamp()
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::darkRed);
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    image.save(&png, "PNG");
    return png.data();
}

QVariant contentAt(int index)
{
    static const QByteArray picture = stamp();
    switch (kindAt(index)) {
    case Obj_CheckBox:
        return index % 24 < 12 ? 2 : 0;
    case Obj_Datetime:
        return QDateTime(QDate(2026, 11, 21), QTime(9, 30));
    case Obj_Picture:
        return picture;
    default:
        return QStringLiteral("%1.50").arg(123000 + index);
    }
}

QGraphicsItem *formObject(int index)
{
    TavroPrototype *object = ControlFactory::factory(kindAt(index));
    object->setBoundingRect(cellAt(index));
    object->setContentData(contentAt(index));
    return object;
}

// As many sections and separators as a date has.
QWidget *sections()
{
    auto *splitter = new QSplitter;
    for (int i = 0; i < 6; ++i)
        splitter->addWidget(new QLabel(QStringLiteral("11")));
    return splitter;
}

QWidget *widgetAt(int index)
{
    switch (kindAt(index)) {
    case Obj_Edit:
    case Obj_Label:
        return new QPlainTextEdit(contentAt(index).toString());
    case Obj_CheckBox:
        return new QCheckBox;
    case Obj_Combx: {
        auto *box = new QComboBox;
        box->setEditable(true);
        return box;
    }
    case Obj_Datetime:
        return sections();
    default:
        return nullptr;
    }
}

/// Item that a program without the library would use: with a widget where the form object of its place has one.
class BareField : public QGraphicsObject
{
public:
    explicit BareField(int index)
        : m_rect(cellAt(index))
        , m_kind(kindAt(index))
    {
        setFlags(ItemIsMovable | ItemIsSelectable | ItemIsFocusable | ItemSendsGeometryChanges);
        if (QWidget *widget = widgetAt(index)) {
            m_proxy = new QGraphicsProxyWidget(this);
            m_proxy->setWidget(widget);
            m_proxy->setMinimumSize(0, 0);
            m_proxy->setGeometry(m_rect);
            m_proxy->hide();
        }
    }

    QRectF boundingRect() const override { return m_rect; }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
    void setMode(Paint_Mode mode)
    {
        const bool isDesign = mode == Paint_Design;
        setVisible(true);
        setEnabled(true);
        setFlag(ItemIsMovable, isDesign);
        setFlag(ItemIsSelectable, isDesign);
        if (m_proxy)
            m_proxy->setVisible(isShownIn(mode));
    }

private:
    // The others are shown when they are clicked, or never.
    bool isShownIn(Paint_Mode mode) const
    {
        return (m_kind == Obj_Combx && mode == Paint_Input) || (m_kind == Obj_Datetime && mode != Paint_Print);
    }

    QRectF m_rect;
    ObjType m_kind;
    QGraphicsProxyWidget *m_proxy = nullptr;
};

void setMode(QGraphicsItem *item, Paint_Mode mode)
{
    if (item->type() == TavroPrototype::Type)
        static_cast<TavroPrototype *>(item)->setPaintMode(mode);
    else
        static_cast<BareField *>(item)->setMode(mode);
}

void switchModes(benchmark::State &state, int count, QGraphicsItem *(*make)(int))
{
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    QVector<QGraphicsItem *> items;
    for (int i = 0; i < count; ++i) {
        items.append(make(i));
        scene.addItem(items.last());
        setMode(items.last(), Paint_Design);
    }
    QCoreApplication::processEvents();
    for (auto _ : state) {
        for (const Paint_Mode mode : {Paint_Input, Paint_Print}) {
            for (QGraphicsItem *item : qAsConst(items))
                setMode(item, mode);
            QCoreApplication::processEvents();
        }
        state.PauseTiming();
        for (QGraphicsItem *item : qAsConst(items))
            setMode(item, Paint_Design);
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
}

// The platform remarks on every proxy that has a size hint.
void withoutRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (message != QLatin1String("This plugin does not support propagateSizeHints()"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    qInstallMessageHandler(withoutRemarks);
    const auto add = [](const std::string &name, int count, QGraphicsItem *(*make)(int)) {
        benchmark::RegisterBenchmark(name.c_str(), switchModes, count, make)
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(3);
    };
    std::vector<RatioTarget> targets;
    for (const int count : Sizes) {
        const std::string bareName = "bareFields" + std::to_string(count);
        const std::string formName = "form" + std::to_string(count);
        add(bareName, count, [](int index) -> QGraphicsItem * { return new BareField(index); });
        add(formName, count, formObject);
        targets.push_back({formName, bareName, 4});
    }
    // A thousand objects in less than 30 ms, of which a slow machine takes some for the bare ones.
    return runWithRatios(argc, argv, targets, {{"form1000", "bareFields1000", 20000}});
}
