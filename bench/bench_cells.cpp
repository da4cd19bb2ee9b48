// SPDX-License-Identifier: MIT
#include "bench/bareitems.h"
#include "bench/ratioreport.h"
#include "cells/tavrofinancialedit.h"
#include "cells/tavroseperateedit.h"
#include "entry/numberwords.h"
#include "entry/tavroedit.h"
#include "entry/tavrolabel.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QKeyEvent>
#include <QPainter>

// What an amount in cells costs that is more than lines and digits on a scene, and what a typed digit costs before the
// program hears of it.

namespace {

constexpr int GridCount = 200;
constexpr int FieldCount = 500;
constexpr int Columns = 4;
constexpr QSizeF Field(300, 60);

QRectF fieldAt(int index)
{
    return {QPointF(index % Columns * Field.width(), index / Columns * Field.height()), Field - QSizeF(4, 4)};
}

// Two to ten whole digits, so that some cells stay empty.
QString amountAt(int index)
{
    return QStringLiteral("1234567890").left(2 + index % 9) + QStringLiteral(".%1").arg(10 + index % 90);
}

// Twelve cells of 24 pixels.
TavroFinancialEdit *filledGrid(int index)
{
    auto *edit = new TavroFinancialEdit;
    edit->setPhyRect({0, 0, 75, 14});
    edit->setBoundingRect(fieldAt(index));
    edit->setCurrency(Currency_Yuan);
    edit->setContentData(amountAt(index));
    edit->setPaintMode(Paint_Input);
    return edit;
}

// Draws what the edit draws.
QGraphicsItem *bareGrid(const TavroFinancialEdit &edit)
{
    constexpr double groundOpacity = 0.4;
    const QRectF area = edit.boundingRect();
    const double wordHeight = edit.unitRowHeight();
    BareGrid::Content content;
    content.ground = area.adjusted(1, wordHeight + 1, -1, -1);
    content.groundColor = QColor(edit.backgroundColor());
    content.groundColor.setAlphaF(groundOpacity);
    content.linePen = QPen(Qt::black, 1, Qt::DotLine, Qt::SquareCap, Qt::BevelJoin);
    content.lines.append({edit.rectAt(0).topLeft(), edit.rectAt(edit.numOfEditable() - 1).topRight()});
    int firstDigit = 0;
    for (int i = 0; i < edit.numOfEditable(); ++i) {
        const QRectF cell = edit.rectAt(i);
        content.lines.append({cell.left(), area.top(), cell.left(), area.bottom()});
        content.words.append({{cell.left(), area.top(), cell.width(), wordHeight},
                              numberwords::PlainUnits[std::size_t(edit.unitEnd() - i)].toString()});
        if (edit.digitAt(i).isEmpty())
            firstDigit = i + 1;
        else
            content.digits.append({cell, edit.digitAt(i)});
    }
    if (firstDigit > 0)
        content.digits.append({edit.rectAt(firstDigit - 1), edit.prefix()});
    content.digitColor = QColor(edit.fontColor());
    content.font = edit.font();
    content.border = area.adjusted(0.5, 0.5, -0.5, -0.5);
    content.borderPen = QPen(QColor(edit.borderColor()), 1);
    return new BareGrid(area, content);
}

QImage emptyPage()
{
    QImage page((QSizeF(Columns * Field.width(), GridCount / Columns * Field.height())).toSize(), QImage::Format_RGB32);
    page.fill(Qt::white);
    return page;
}

void render(QGraphicsScene *scene, QImage *page)
{
    QPainter painter(page);
    scene->render(&painter, QRectF(page->rect()), QRectF(page->rect()));
}

// Two scenes with the same on them, without an index as scenes of forms have to be.
struct GridScenes
{
    GridScenes()
    {
        grids.setItemIndexMethod(QGraphicsScene::NoIndex);
        twins.setItemIndexMethod(QGraphicsScene::NoIndex);
        for (int i = 0; i < GridCount; ++i) {
            TavroFinancialEdit *edit = filledGrid(i);
            grids.addItem(edit);
            twins.addItem(bareGrid(*edit));
        }
        QCoreApplication::processEvents();
    }

    QGraphicsScene grids;
    QGraphicsScene twins;
};

void repaint(benchmark::State &state, QGraphicsScene *scene)
{
    QImage page = emptyPage();
    for (auto _ : state)
        render(scene, &page);
}

void repaintGrids(benchmark::State &state)
{
    GridScenes scenes;
    QImage grids = emptyPage();
    QImage twins = emptyPage();
    render(&scenes.grids, &grids);
    render(&scenes.twins, &twins);
    if (grids != twins)
        state.SkipWithError("the twins draw something else");
    repaint(state, &scenes.grids);
}

void repaintBareGrids(benchmark::State &state)
{
    GridScenes scenes;
    repaint(state, &scenes.twins);
}

// What a key reaches and nothing more.
class BareField : public QGraphicsItem
{
public:
    BareField() { setFlag(ItemIsFocusable); }
    QRectF boundingRect() const override { return fieldAt(0); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
    int received() const { return m_received; }

protected:
    void keyPressEvent(QKeyEvent *) override { ++m_received; }

private:
    int m_received = 0;
};

TavroText *anyField(int index)
{
    switch (index % 4) {
    case 0:
        return new TavroFinancialEdit;
    case 1:
        return new TavroSeperateEdit;
    case 2:
        return new TavroLabel;
    default:
        return new TavroEdit;
    }
}

// A form as somebody fills it in, in a window. The field that is typed into is the first.
class ShownForm
{
public:
    explicit ShownForm(QGraphicsItem *first)
        : m_view(&m_scene)
    {
        m_scene.addItem(first);
        for (int i = 1; i < FieldCount; ++i) {
            TavroText *field = anyField(i);
            field->setBoundingRect(fieldAt(i));
            field->setContentData(amountAt(i));
            field->setPaintMode(Paint_Input);
            m_scene.addItem(field);
        }
        m_view.show();
        QApplication::setActiveWindow(&m_view);
        first->setFocus();
        QCoreApplication::processEvents();
    }

    void type(int digit)
    {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_0 + digit, Qt::NoModifier, QString(QChar('0' + digit)));
        QCoreApplication::sendEvent(&m_scene, &key);
    }

private:
    QGraphicsScene m_scene;
    QGraphicsView m_view;
};

// One iteration is one digit. What it changes is painted, and a full row emptied, while the clock stands still.
template <typename Empty, typename Received>
void typeDigits(benchmark::State &state, ShownForm *form, Empty empty, Received received)
{
    constexpr int digitsOfRow = 7;
    const int receivedBefore = received();
    int typed = 0;
    for (auto _ : state) {
        form->type(1 + typed % 9);
        state.PauseTiming();
        if (++typed % digitsOfRow == 0)
            empty();
        QCoreApplication::processEvents();
        state.ResumeTiming();
    }
    if (received() - receivedBefore != typed)
        state.SkipWithError("digits were lost");
}

template <typename Edit, typename ResetCursor>
void typeIntoEdit(benchmark::State &state, Edit *edit, ResetCursor resetCursor)
{
    edit->setBoundingRect(fieldAt(0));
    edit->setPaintMode(Paint_Input);
    ShownForm form(edit);
    int changes = 0;
    QObject::connect(edit, &TavroPrototype::contentDataChanged, [&changes] { ++changes; });
    const auto empty = [edit, &changes, resetCursor] {
        edit->setContentData(QString());
        --changes;
        (edit->*resetCursor)();
    };
    typeDigits(state, &form, empty, [&changes] { return changes; });
}

void typeIntoGrid(benchmark::State &state)
{
    typeIntoEdit(state, new TavroFinancialEdit, &TavroFinancialEdit::resetCurosr);
}

void typeIntoSeparatedRow(benchmark::State &state)
{
    typeIntoEdit(state, new TavroSeperateEdit, &TavroSeperateEdit::resetCursor);
}

void typeIntoBareField(benchmark::State &state)
{
    auto *field = new BareField;
    ShownForm form(field);
    typeDigits(
        state, &form, [] {}, [field] { return field->received(); });
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const auto addRepaint = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->Repetitions(5);
    };
    addRepaint("repaintBareGrids", repaintBareGrids);
    addRepaint("repaintGrids", repaintGrids);
    // A number of keys instead of a time: with the clock standing still in between, half a second would take minutes.
    const auto addTyping = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond)->Iterations(2000)->Repetitions(5);
    };
    addTyping("typeIntoBareField", typeIntoBareField);
    addTyping("typeIntoGrid", typeIntoGrid);
    addTyping("typeIntoSeparatedRow", typeIntoSeparatedRow);
    return runWithRatios(
        argc, argv, {{"repaintGrids", "repaintBareGrids", 1.2}},
        {{"typeIntoGrid", "typeIntoBareField", 20}, {"typeIntoSeparatedRow", "typeIntoBareField", 20}});
}
