// SPDX-License-Identifier: MIT
#include "bench/bareitems.h"
#include "bench/ratioreport.h"
#include "cells/tavrofinancialedit.h"
#include "datetime/tavrodatetime.h"
#include "desk/datetimesections.h"
#include "desk/fonts.h"
#include "desk/form.h"
#include "desk/formreader.h"
#include "desk/printing.h"
#include "desk/record.h"
#include "entry/tavroedit.h"
#include "graphic/tavroline.h"
#include "graphic/tavrorect.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QGraphicsScene>
#include <QHash>
#include <QJsonDocument>
#include <QPainter>
#include <QPdfWriter>
#include <cstdio>

// A batch of cheques in one file, beside bare items that draw the same texts and lines.

namespace {

constexpr int PageCount = 100;
constexpr int Dpi = 300;
constexpr double MillimetresPerInch = 25.4;

QString sample(const char *name)
{
    return QStringLiteral(TAVRO_SAMPLES "/") + QLatin1String(name);
}

std::unique_ptr<Form> cheque()
{
    formreader::Result result = formreader::read(sample("chinese-cheque.tform"));
    if (!result.form)
        qFatal("%s", qPrintable(result.error));
    return std::move(result.form);
}

QJsonObject sampleRecord()
{
    QFile file(sample("chinese-cheque.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no record");
    return QJsonDocument::fromJson(file.readAll()).object();
}

// The record of one page: the values of the sample, and an amount of its own.
QJsonObject recordOf(int page)
{
    static const QJsonObject first = sampleRecord();
    QJsonObject record = first;
    const QString amount = QString::number(100000 + page * 317.25, 'f', 2);
    for (const char *id : {"amount", "amountInCapitals", "stubAmount"}) {
        if (record.contains(QLatin1String(id)))
            record.insert(QLatin1String(id), amount);
    }
    return record;
}

// Writes a file in memory, with `paintPage` for each of its pages.
template <typename PaintPage>
void printPages(const QSizeF &pageSize, int pages, PaintPage paintPage)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(Dpi);
    writer.setPageLayout({QPageSize(pageSize, QPageSize::Millimeter), QPageLayout::Portrait, {}});
    QPainter painter(&writer);
    for (int page = 0; page < pages; ++page) {
        if (page > 0)
            writer.newPage();
        paintPage(&painter, page);
    }
}

QRectF target(const QSizeF &pageSize)
{
    return {QPointF(0, 0), pageSize * (Dpi / MillimetresPerInch)};
}

const QVector<QJsonObject> &records()
{
    static const QVector<QJsonObject> all = [] {
        QVector<QJsonObject> records;
        for (int page = 0; page < PageCount; ++page)
            records.append(recordOf(page));
        return records;
    }();
    return all;
}

void printForm(Form *form, int pages)
{
    printPages(form->pageSize, pages, [form](QPainter *painter, int page) {
        record::fillFromJson(form, records().at(page % PageCount), QString());
        printing::paintPage(painter, form, target(form->pageSize));
    });
}

// A scene of bare items with the drawn texts of every page, worked out before the clock runs.
class BareCheques
{
public:
    BareCheques()
        : m_form(cheque())
    {
        m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
        m_form->fitTexts();
        for (const Form::Entry &entry : m_form->entries)
            add(entry.object);
        for (int page = 0; page < PageCount; ++page) {
            record::fillFromJson(m_form.get(), records().at(page), QString());
            m_form->fitTexts();
            Page drawn;
            for (const TavroEdit *edit : qAsConst(m_edits))
                drawn.texts.append({edit->prefix() + edit->displayText(), edit->font()});
            for (const TavroFinancialEdit *grid : qAsConst(m_grids))
                drawn.cells.append(digitsOf(*grid));
            for (const TavroDatetime *date : qAsConst(m_dates))
                drawn.cells.append(sectionsOf(*date));
            m_pages.append(drawn);
        }
    }

    void print(int pages)
    {
        printPages(m_form->pageSize, pages, [this](QPainter *painter, int page) {
            const Page &drawn = m_pages.at(page % PageCount);
            for (int i = 0; i < m_texts.size(); ++i) {
                m_texts.at(i)->setText(drawn.texts.at(i).text);
                m_texts.at(i)->setFont(drawn.texts.at(i).font);
            }
            // In the order in which a page keeps them: grids, then dates.
            const QVector<BareCells *> cells = m_gridCells + m_dateCells;
            for (int i = 0; i < cells.size(); ++i)
                cells.at(i)->setTexts(drawn.cells.at(i));
            m_scene.render(painter, target(m_form->pageSize), m_form->pageRect());
        });
    }

private:
    struct Drawn
    {
        QString text;
        QFont font;
    };
    struct Page
    {
        QVector<Drawn> texts;
        QVector<QVector<CellText>> cells;
    };

    // What is printed of a grid: its digits, and the sign in front of the first.
    static QVector<CellText> digitsOf(const TavroFinancialEdit &grid)
    {
        QVector<CellText> texts;
        for (int i = 0; i < grid.numOfEditable(); ++i) {
            if (grid.digitAt(i).isEmpty())
                continue;
            if (texts.isEmpty() && i > 0)
                texts.append({grid.rectAt(i - 1), grid.prefix()});
            texts.append({grid.rectAt(i), grid.digitAt(i)});
        }
        return texts;
    }

    // What is printed of a date: its texts, where the editor has them.
    static QVector<CellText> sectionsOf(const TavroDatetime &date)
    {
        QVector<CellText> texts;
        for (const datetimesections::Section &section : datetimesections::printed(date))
            texts.append({section.rect, section.text});
        return texts;
    }

    void add(TavroPrototype *object)
    {
        QGraphicsItem *item = nullptr;
        if (const auto *line = qobject_cast<TavroLine *>(object)) {
            item = new BareLine(line->boundingRect(), pen(*line));
        } else if (const auto *rect = qobject_cast<TavroRect *>(object)) {
            item = new BareRect(rect->boundingRect(), pen(*rect));
        } else if (auto *edit = qobject_cast<TavroEdit *>(object)) {
            auto *text = new BareText(edit->boundingRect(), QString(), edit->font(), edit->textOption(),
                                      QColor(edit->fontColor()));
            m_edits.append(edit);
            m_texts.append(text);
            item = text;
        } else if (const auto *grid = qobject_cast<TavroFinancialEdit *>(object)) {
            auto *cells = new BareCells(grid->boundingRect(), grid->font(), QColor(grid->fontColor()));
            m_grids.append(grid);
            m_gridCells.append(cells);
            item = cells;
        } else if (const auto *date = qobject_cast<TavroDatetime *>(object)) {
            auto *cells = new BareCells(date->boundingRect(), date->font(), Qt::black);
            m_dates.append(date);
            m_dateCells.append(cells);
            item = cells;
        }
        if (item)
            m_scene.addItem(item);
    }

    template <typename Stroked>
    static QPen pen(const Stroked &object)
    {
        return {QColor::fromRgba(object.lineColor()), object.lineWidthPix(), object.lineStyle(), Qt::SquareCap,
                Qt::MiterJoin};
    }

    std::unique_ptr<Form> m_form;
    QGraphicsScene m_scene;
    QVector<TavroEdit *> m_edits;
    QVector<BareText *> m_texts;
    QVector<const TavroFinancialEdit *> m_grids;
    QVector<BareCells *> m_gridCells;
    QVector<const TavroDatetime *> m_dates;
    QVector<BareCells *> m_dateCells;
    QVector<Page> m_pages;
};

void chequesOfForm(benchmark::State &state)
{
    const std::unique_ptr<Form> form = cheque();
    printing::prepare(form.get());
    records();
    for (auto _ : state)
        printForm(form.get(), PageCount);
}

void chequesOfBareItems(benchmark::State &state)
{
    BareCheques cheques;
    for (auto _ : state)
        cheques.print(PageCount);
}

// Resident memory in kilobytes.
long residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return 0;
}

// What stays behind when batches of more and more pages were printed: nothing may grow with the pages.
void printMemory()
{
    const std::unique_ptr<Form> form = cheque();
    printing::prepare(form.get());
    std::printf("\n%-28s %10s\n", "pages printed in one file", "RSS kB");
    for (const int pages : {10, 100, 1000, 1000, 1000}) {
        printForm(form.get(), pages);
        std::printf("%-28d %10ld\n", pages, residentKilobytes());
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    fonts::substituteMissing();
    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->Repetitions(5);
    };
    add("chequesOfBareItems", chequesOfBareItems);
    add("chequesOfForm", chequesOfForm);
    // 0.8 times the pages a second are 1.25 times the time a page.
    const int result = runWithRatios(argc, argv, {{"chequesOfForm", "chequesOfBareItems", 1.25}});
    printMemory();
    return result;
}
