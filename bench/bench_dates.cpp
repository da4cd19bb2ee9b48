// SPDX-License-Identifier: MIT
#include "bench/ratioreport.h"
#include "datetime/tavrodatetime.h"

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QSplitter>
#include <array>
#include <cstdio>
#include <memory>
#include <vector>

// What the dates of a form cost that is more than rows of labels and texts on a scene.

namespace {

constexpr int ObjectCount = 200;
constexpr int Columns = 10;
constexpr int HandleWidth = 2;
constexpr QSizeF Cell(260, 30);

QRectF cellAt(int index)
{
    return {QPointF(index % Columns * Cell.width(), index / Columns * Cell.height()), Cell - QSizeF(4, 4)};
}

QSize sceneSize()
{
    return (QSizeF(Columns * Cell.width(), ObjectCount / Columns * Cell.height())).toSize();
}

QDateTime dateAt(int index)
{
    return QDateTime(QDate(2022, 1, 5), QTime(8, 5, 9)).addDays(index).addSecs(index);
}

/// The same two rows of labels, put together by hand: one for the date in a proxy, one for the time beside it.
class BareDate
{
public:
    explicit BareDate(const QDateTime &dateTime)
        : m_dateRow(new QSplitter)
        , m_timeRow(std::make_unique<QSplitter>())
    {
        setUp(m_dateRow, {QStringLiteral("年"), QStringLiteral("月"), QStringLiteral("日")});
        setUp(m_timeRow.get(), {QStringLiteral("时"), QStringLiteral("分"), QStringLiteral("秒")});
        m_proxy.setWidget(m_dateRow);
        m_proxy.setMinimumSize(0, 0);
        m_proxy.hide();
        setDateTime(dateTime);
    }

    QGraphicsProxyWidget *proxy() { return &m_proxy; }

    void setGeometry(const QRect &rect)
    {
        m_dateRow->setGeometry(rect);
        m_timeRow->setGeometry(rect);
    }

    void setDateTime(const QDateTime &dateTime)
    {
        const QDate date = dateTime.date();
        const QTime time = dateTime.time();
        write(m_dateRow, {date.year(), date.month(), date.day()});
        write(m_timeRow.get(), {time.hour(), time.minute(), time.second()});
    }

private:
    static void setUp(QSplitter *row, const QStringList &words)
    {
        row->setHandleWidth(HandleWidth);
        row->setChildrenCollapsible(false);
        row->setStyleSheet(QStringLiteral("QSplitter{background-color: rgba(255, 255, 255, 80);}"
                                          "QSplitter::handle{background: #66CC99;}"));
        QFont font(QStringLiteral("宋体"));
        font.setPixelSize(15);
        font.setHintingPreference(QFont::PreferVerticalHinting);
        for (const QString &word : words) {
            addLabel(row, QString(), font);
            addLabel(row, word, font)->setFixedWidth(QFontMetrics(font).horizontalAdvance(word));
        }
        row->setMinimumSize(0, 0);
        row->setGeometry(0, 0, 10, 10);
    }

    static QLabel *addLabel(QSplitter *row, const QString &text, const QFont &font)
    {
        auto *label = new QLabel(text);
        label->setAlignment(Qt::AlignCenter);
        label->setFont(font);
        row->addWidget(label);
        return label;
    }

    static void write(QSplitter *row, const std::array<int, 3> &values)
    {
        int index = 0;
        for (const int value : values) {
            static_cast<QLabel *>(row->widget(index))->setText(QString::number(value));
            index += 2;
        }
    }

    QSplitter *m_dateRow;
    std::unique_ptr<QSplitter> m_timeRow;
    QGraphicsProxyWidget m_proxy;
};

/// Texts side by side with the gaps of a splitter between them, each centred in a width of its own.
class BareRow : public QGraphicsItem
{
public:
    BareRow(const QRectF &rect, const QStringList &texts, const QList<int> &widths, const QFont &font)
        : m_rect(rect)
        , m_texts(texts)
        , m_widths(widths)
        , m_font(font)
    {
    }

    QRectF boundingRect() const override { return m_rect; }

    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::black);
        painter->setFont(m_font);
        QRect place = m_rect.toRect();
        for (int i = 0; i < m_texts.size(); ++i) {
            place.setWidth(m_widths.at(i));
            painter->drawText(place, Qt::AlignCenter | Qt::TextDontClip, m_texts.at(i));
            place.translate(place.width() + HandleWidth, 0);
        }
    }

private:
    QRectF m_rect;
    QStringList m_texts;
    QList<int> m_widths;
    QFont m_font;
};

// Construction alone: what was made is deleted while the clock stands still.
template <typename Make>
void construct(benchmark::State &state, Make make)
{
    for (auto _ : state) {
        std::vector<decltype(make())> made;
        made.reserve(ObjectCount);
        for (int i = 0; i < ObjectCount; ++i)
            made.push_back(make());
        state.PauseTiming();
        // An event that waits for a widget takes its death longer than itself.
        QCoreApplication::sendPostedEvents();
        made.clear();
        state.ResumeTiming();
    }
}

void constructDates(benchmark::State &state)
{
    construct(state, [] { return std::make_unique<TavroDatetime>(); });
}

void constructBareDates(benchmark::State &state)
{
    construct(state, [] { return std::make_unique<BareDate>(QDateTime::currentDateTime()); });
}

// Both scenes have no index, as scenes with lines in any direction must.
void repaint(benchmark::State &state, QGraphicsScene *scene)
{
    scene->setItemIndexMethod(QGraphicsScene::NoIndex);
    QImage image(sceneSize(), QImage::Format_RGB32);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        scene->render(&painter, QRectF(image.rect()), QRectF(image.rect()));
    }
}

TavroDatetime *dateOnForm(QGraphicsScene *scene, int index, Paint_Mode mode)
{
    auto *date = new TavroDatetime;
    scene->addItem(date);
    date->setBoundingRect(cellAt(index));
    date->setContentData(dateAt(index));
    date->setPaintMode(mode);
    return date;
}

void printDates(benchmark::State &state)
{
    QGraphicsScene scene;
    for (int i = 0; i < ObjectCount; ++i)
        dateOnForm(&scene, i, Paint_Print);
    QCoreApplication::processEvents();
    repaint(state, &scene);
}

void printBareTexts(benchmark::State &state)
{
    QGraphicsScene scene;
    for (int i = 0; i < ObjectCount; ++i) {
        const TavroDatetime *date = dateOnForm(&scene, i, Paint_Print);
        const auto *row = static_cast<QSplitter *>(date->widgetPrxy()->widget());
        QStringList texts;
        for (int section = 0; section < row->count(); ++section)
            texts.append(static_cast<QLabel *>(row->widget(section))->text());
        scene.addItem(new BareRow(cellAt(i), texts, date->splitSizes(), date->font()));
        delete date;
    }
    repaint(state, &scene);
}

// Gives every date another value and lets the event loop do what that has put off.
template <typename Change>
void change(benchmark::State &state, Change changeTo)
{
    // Reckoning with local times is no part of a change.
    std::vector<QDateTime> values;
    for (int i = 0; i <= ObjectCount; ++i)
        values.push_back(dateAt(i));
    std::size_t round = 0;
    for (auto _ : state) {
        round = 1 - round;
        for (std::size_t i = 0; i < ObjectCount; ++i)
            changeTo(i, values[i + round]);
        QCoreApplication::processEvents();
    }
}

void changeDates(benchmark::State &state)
{
    QGraphicsScene scene;
    std::vector<TavroDatetime *> dates;
    for (int i = 0; i < ObjectCount; ++i)
        dates.push_back(dateOnForm(&scene, i, Paint_Input));
    QCoreApplication::processEvents();
    change(state, [&dates](std::size_t i, const QDateTime &dateTime) { dates[i]->setContentData(dateTime); });
}

void changeBareDates(benchmark::State &state)
{
    QGraphicsScene scene;
    std::vector<std::unique_ptr<BareDate>> dates;
    for (int i = 0; i < ObjectCount; ++i) {
        dates.push_back(std::make_unique<BareDate>(dateAt(i)));
        dates.back()->setGeometry(cellAt(i).toRect());
        scene.addItem(dates.back()->proxy());
        dates.back()->proxy()->show();
    }
    QCoreApplication::processEvents();
    change(state, [&dates](std::size_t i, const QDateTime &dateTime) { dates[i]->setDateTime(dateTime); });
}

void changeNothing(benchmark::State &state)
{
    change(state, [](std::size_t, const QDateTime &dateTime) { benchmark::DoNotOptimize(dateTime.isValid()); });
}

void withoutRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    // The platform without a screen says this at each widget, which takes longer than making it.
    if (message != QLatin1String("This plugin does not support propagateSizeHints()"))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

int main(int argc, char **argv)
{
    qInstallMessageHandler(withoutRemarks);
    const QApplication application(argc, argv);
    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond)->Repetitions(5);
    };
    add("constructBareDates", constructBareDates);
    add("constructDates", constructDates);
    add("printBareTexts", printBareTexts);
    add("printDates", printDates);
    add("changeNothing", changeNothing);
    add("changeBareDates", changeBareDates);
    add("changeDates", changeDates);
    return runWithRatios(argc, argv,
                         {{"constructDates", "constructBareDates", 1.3},
                          {"printDates", "printBareTexts", 1.2},
                          {"changeDates", "changeBareDates", 2}},
                         {{"changeDates", "changeNothing", 10000}});
}
