// SPDX-License-Identifier: MIT
#include "desk/printing.h"

#include "core/tavroprototype.h"
#include "core/tavrotext.h"
#include "tests/desk/deskforms.h"
#include "tests/desk/measuring.h"
#include "tests/support/recordingpaintengine.h"
#include "tests/support/stricttest.h"

#include <QDir>
#include <QFontMetricsF>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <csignal>
#include <sys/resource.h>

namespace {

// True size, as it is promised.
constexpr double MostError = 0.1;

// Strokes of the measured page, and texts whose ends or middles are measured.
constexpr double Stroke = 0.4;
const QRectF Level(10, 10, 80, 0);
const QRectF Upright(95, 8, 0, 44);
const QRectF Backwards(40, 55.5, -30.5, 0);
const QRectF Slanted(60, 56, 25, -8);
const QRectF Frame(52.3, 15.7, 20.45, 12.6);
const QRectF LeftText(10, 17, 35, 6);
const QRectF RightText(10, 27, 35, 6);
const QRectF MiddleText(10, 37, 35, 6);
const QRectF TurnedText(70, 37, 20, 6);

QJsonObject settings(const char *json)
{
    return deskforms::value(json).toObject();
}

QJsonObject measuredPage(double scale)
{
    const QJsonObject stroke{{QStringLiteral("lineWidth"), Stroke}};
    QJsonObject file = deskforms::file(
        {deskforms::object("line", Level, stroke), deskforms::object("line", Upright, stroke),
         deskforms::object("line", Backwards, stroke), deskforms::object("line", Slanted, stroke),
         deskforms::object("rect", Frame, stroke), deskforms::text("label", LeftText, settings(R"({"text":"Left"})")),
         deskforms::text("label", RightText, settings(R"({"text":"Right","align":"right"})")),
         deskforms::text("edit", MiddleText, settings(R"({"preset":"Middle","align":"center"})")),
         deskforms::text("edit", TurnedText, settings(R"({"preset":"Turned","align":"center","rotation":90})"))});
    file.insert(QStringLiteral("pixelsPerMillimetre"), scale);
    return file;
}

// Keeps the largest error of a page.
class Errors
{
public:
    void add(const char *what, double measured, double expected)
    {
        const double error = std::abs(measured - expected);
        // Not a number is an error too.
        if (!(error <= m_largest)) {
            m_largest = error;
            m_what = what;
        }
    }
    bool areSmall() const { return m_largest <= MostError; }
    QString text() const
    {
        return QStringLiteral("largest error %1 mm: %2").arg(m_largest, 0, 'f', 3).arg(QLatin1String(m_what));
    }

private:
    double m_largest = 0;
    const char *m_what = "none";
};

void measureStrokes(const measuring::Picture &page, Errors *errors)
{
    constexpr double half = Stroke / 2;
    errors->add("level line, y", page.strokeY({40, 8, 20, 4}), Level.y());
    errors->add("level line, start", page.startX({8, 8, 4, 4}), Level.left() - half);
    errors->add("level line, end", page.endX({88, 8, 4, 4}), Level.right() + half);
    errors->add("upright line, x", page.strokeX({93, 20, 4, 20}), Upright.x());
    errors->add("upright line, start", page.startY({93, 6, 4, 4}), Upright.top() - half);
    errors->add("upright line, end", page.endY({93, 50, 4, 4}), Upright.bottom() + half);
    errors->add("backwards line, y", page.strokeY({20, 54, 10, 3}), Backwards.y());
    errors->add("backwards line, left end", page.startX({8, 54, 4, 3}), Backwards.right() - half);
    errors->add("backwards line, right end", page.endX({38, 54, 4, 3}), Backwards.left() + half);
    errors->add("slanted line, middle", page.strokeX({70, 51.9, 5, 0.2}), Slanted.center().x());
    errors->add("frame, left", page.strokeX({51, 19, 3, 5}), Frame.left());
    errors->add("frame, right", page.strokeX({71, 19, 3, 5}), Frame.right());
    errors->add("frame, top", page.strokeY({58, 14, 8, 3}), Frame.top());
    errors->add("frame, bottom", page.strokeY({58, 27, 8, 3}), Frame.bottom());
}

void measureTexts(const QMultiMap<QString, QRectF> &words, Errors *errors)
{
    const auto word = [&words](const char *text) {
        const double none = std::nan("");
        return words.value(QLatin1String(text), QRectF(none, none, none, none));
    };
    errors->add("left text, left end", word("Left").left(), LeftText.left());
    errors->add("left text, height", word("Left").center().y(), LeftText.center().y());
    errors->add("right text, right end", word("Right").right(), RightText.right());
    errors->add("middle text, x", word("Middle").center().x(), MiddleText.center().x());
    errors->add("turned text, x", word("Turned").center().x(), TurnedText.center().x());
    errors->add("turned text, y", word("Turned").center().y(), TurnedText.center().y());
}

void measureDrawing(const measuring::Drawing &drawing, Errors *errors)
{
    errors->add("paper, width", drawing.size.width(), 100);
    errors->add("paper, height", drawing.size.height(), 60);
    const QVector<QRectF> lines{Level, Upright, Backwards, Slanted};
    QCOMPARE(drawing.lines.size(), lines.size());
    for (int i = 0; i < lines.size(); ++i) {
        errors->add("line, x of the start", drawing.lines.at(i).x1(), lines.at(i).left());
        errors->add("line, y of the start", drawing.lines.at(i).y1(), lines.at(i).top());
        errors->add("line, x of the end", drawing.lines.at(i).x2(), lines.at(i).right());
        errors->add("line, y of the end", drawing.lines.at(i).y2(), lines.at(i).bottom());
    }
    QCOMPARE(drawing.rects.size(), 1);
    errors->add("frame, left", drawing.rects.first().left(), Frame.left());
    errors->add("frame, top", drawing.rects.first().top(), Frame.top());
    errors->add("frame, right", drawing.rects.first().right(), Frame.right());
    errors->add("frame, bottom", drawing.rects.first().bottom(), Frame.bottom());
    errors->add("left text, left end", drawing.texts.value(QStringLiteral("Left")).x(), LeftText.left());
}

QStringList textsOn(const RecordingDevice &device)
{
    QStringList texts;
    for (const PaintCommand &command : device.commands(PaintCommand::Text))
        texts.append(command.text);
    return texts;
}

void paintOn(RecordingDevice *device, Form *form)
{
    QPainter painter(device);
    printing::prepare(form);
    printing::paintPage(&painter, form, form->pageRect());
}

} // namespace

class PrintingTest : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void trueSize_data();
    void trueSize();
    void sizeOfThePaper_data();
    void sizeOfThePaper();
    void hiddenObjects();
    void nothingOfTheScreen();
    void rowsPrintTheirCellsOnly();
    void rotationKeepsTheCentre_data();
    void rotationKeepsTheCentre();
    void orderOfPainting();
    void fontsFitWithoutEventLoop();
    void secondPageAfterTheFirst();
    void knownFormats_data();
    void knownFormats();
    void failures_data();
    void failures();
    void fullDisk_data();
    void fullDisk();

private:
    QString inFolder(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

void PrintingTest::trueSize_data()
{
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<double>("scale");
    for (const char *suffix : {"pdf", "png", "svg"}) {
        for (const int dpi : {96, 300, 1200}) {
            for (const double scale : {8.0, 23.6})
                QTest::addRow("%s at %d dpi, %g px/mm", suffix, dpi, scale)
                    << QString::fromLatin1(suffix) << dpi << scale;
        }
    }
}

void PrintingTest::trueSize()
{
    QFETCH(QString, suffix);
    QFETCH(int, dpi);
    QFETCH(double, scale);
    const std::unique_ptr<Form> form = deskforms::readFile(measuredPage(scale));
    QVERIFY(form);
    const QString name = inFolder(QStringLiteral("page.") + suffix);
    QCOMPARE(printing::write(form.get(), name, dpi), QString());

    Errors errors;
    if (suffix == QLatin1String("pdf")) {
        const measuring::Picture page = measuring::Picture::ofPdf(name, 600);
        QVERIFY2(!page.isNull(), "pdftoppm shows no page");
        measureStrokes(page, &errors);
        measureTexts(measuring::wordsOfPdf(name), &errors);
    } else if (suffix == QLatin1String("png")) {
        const QImage image(name);
        QCOMPARE(image.size(), QSize(qRound(100 / 25.4 * dpi), qRound(60 / 25.4 * dpi)));
        QCOMPARE(image.dotsPerMeterX(), qRound(dpi / 0.0254));
        QCOMPARE(image.dotsPerMeterY(), qRound(dpi / 0.0254));
        measureStrokes(measuring::Picture(image, dpi), &errors);
    } else {
        measureDrawing(measuring::drawingOfSvg(name), &errors);
    }
    qInfo("%s", qPrintable(errors.text()));
    QVERIFY2(errors.areSmall(), qPrintable(errors.text()));
}

void PrintingTest::sizeOfThePaper_data()
{
    QTest::addColumn<QSizeF>("paper");
    QTest::addColumn<int>("dpi");
    for (const int dpi : {10, 96, 300, 1200}) {
        QTest::addRow("cheque at %d dpi", dpi) << QSizeF(225, 82.5) << dpi;
        QTest::addRow("upright at %d dpi", dpi) << QSizeF(99.3, 210.7) << dpi;
        QTest::addRow("small at %d dpi", dpi) << QSizeF(5, 5) << dpi;
    }
}

// A PNG has whole pixels, a PDF whole points; an SVG is true.
void PrintingTest::sizeOfThePaper()
{
    QFETCH(QSizeF, paper);
    QFETCH(int, dpi);
    QJsonObject file = deskforms::file({});
    file.insert(QStringLiteral("page"),
                QJsonObject{{QStringLiteral("width"), paper.width()}, {QStringLiteral("height"), paper.height()}});
    const std::unique_ptr<Form> form = deskforms::readFile(file);
    QVERIFY(form);
    const auto isClose = [&paper](const QSizeF &size, double most) {
        return std::abs(size.width() - paper.width()) <= most && std::abs(size.height() - paper.height()) <= most;
    };
    QCOMPARE(printing::write(form.get(), inFolder(QStringLiteral("paper.png")), dpi), QString());
    const QImage image(inFolder(QStringLiteral("paper.png")));
    QVERIFY(isClose(QSizeF(image.size()) / dpi * 25.4, 25.4 / dpi / 2 + 1e-6));
    QCOMPARE(printing::write(form.get(), inFolder(QStringLiteral("paper.svg")), dpi), QString());
    QVERIFY(isClose(measuring::drawingOfSvg(inFolder(QStringLiteral("paper.svg"))).size, 0.01));
    QCOMPARE(printing::write(form.get(), inFolder(QStringLiteral("paper.pdf")), dpi), QString());
    const measuring::Picture page = measuring::Picture::ofPdf(inFolder(QStringLiteral("paper.pdf")), 600);
    QVERIFY(isClose(page.size(), 25.4 / 72 / 2 + 25.4 / 600));
}

void PrintingTest::hiddenObjects()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::text("label", {10, 5, 50, 6}, settings(R"({"text":"printed"})")),
         deskforms::text("label", {10, 15, 50, 6}, settings(R"({"text":"on screen only","print":false})")),
         deskforms::text("label", {10, 25, 50, 6}, settings(R"({"text":"hidden","visible":false})")),
         deskforms::text("label", {10, 35, 50, 6}, settings(R"({"text":"greyed","enabled":false})")),
         deskforms::text("edit", {10, 45, 50, 6}, settings(R"({"prefix":"No. ","preset":"7","locked":true})")),
         deskforms::object("line", {1, 1, 9, 9}, settings(R"({"print":false})")),
         deskforms::object("rect", {1, 1, 9, 9}, settings(R"({"visible":false})")),
         deskforms::object("rect", {1, 1, 9, 9})});
    QVERIFY(form);
    RecordingDevice device;
    paintOn(&device, form.get());
    QCOMPARE(textsOn(device),
             QStringList({QStringLiteral("printed"), QStringLiteral("greyed"), QStringLiteral("No. 7")}));
    QCOMPARE(device.commands(PaintCommand::Line).size(), 0);
    QCOMPARE(device.commands(PaintCommand::Rect).size(), 1);
}

// Border, background, hint, handles and the frame of a selection belong to the screen.
void PrintingTest::nothingOfTheScreen()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::text("edit", {10, 5, 50, 6},
                         settings(R"({"border":true,"placeholder":"hint","backgroundColor":"#ff0000","locked":true})")),
         deskforms::text("label", {10, 15, 50, 6}, settings(R"({"border":true})"))});
    QVERIFY(form);
    for (const Form::Entry &entry : form->entries)
        entry.object->setSelected(true);
    RecordingDevice device;
    paintOn(&device, form.get());
    for (const PaintCommand &command : device.commands()) {
        QCOMPARE(int(command.kind), int(PaintCommand::Text));
        QCOMPARE(command.text, QString());
    }
}

// Frames, words, shades and cursors belong to the screen too: the paper has them already.
void PrintingTest::rowsPrintTheirCellsOnly()
{
    const auto row = [](const char *kind, double y, const char *json) {
        return deskforms::text(kind, {10, y, 80, 6}, settings(json));
    };
    const std::unique_ptr<Form> form = deskforms::formWith(
        {row("separatedEdit", 2, R"({"preset":"305.7"})"),
         row("separatedEdit", 10, R"({"preset":"20","prefixMark":"zero","prefixAll":true,"highestUnit":5})"),
         row("separatedEdit", 18, R"({"preset":"0.00"})"),
         row("separatedEdit", 26, R"({"mode":"chars6","preset":"a B1"})"),
         row("financialEdit", 34, R"({"preset":"12.5","currency":"usd","showLimit":true,"limitUnit":4})"),
         row("financialEdit", 42, R"({"preset":"7","print":false})"),
         row("separatedEdit", 50, R"({"preset":"7","print":false})")});
    QVERIFY(form);
    RecordingDevice device;
    paintOn(&device, form.get());
    QCOMPARE(textsOn(device).join(QLatin1Char(' ')),
             QStringLiteral("叁 零 伍 柒 零 ⓧ 贰 零 零 零 零 零 a   B 1 1 2 5 0 USD"));
    QCOMPARE(device.commands().size(), device.commands(PaintCommand::Text).size());
}

void PrintingTest::rotationKeepsTheCentre_data()
{
    QTest::addColumn<int>("degrees");
    for (const int degrees : {-360, -90, 0, 30, 45, 90, 180, 270, 360})
        QTest::addRow("%d degrees", degrees) << degrees;
}

void PrintingTest::rotationKeepsTheCentre()
{
    QFETCH(int, degrees);
    const QJsonObject turned{{QStringLiteral("rotation"), degrees}};
    const QRectF place(20, 30, 40, 10);
    const std::unique_ptr<Form> form = deskforms::formWith({deskforms::object("rect", place, turned)});
    QVERIFY(form);
    RecordingDevice device;
    paintOn(&device, form.get());
    const QVector<PaintCommand> frames = device.commands(PaintCommand::Rect);
    QCOMPARE(frames.size(), 1);
    const QPolygonF printed = frames.first().transform.map(QPolygonF(frames.first().rect));
    const QPointF centre = printed.boundingRect().center() / 8;
    QVERIFY(QLineF(centre, place.center()).length() < 1e-6);
    // Clockwise on the page, where y points downwards.
    const QLineF top(printed.at(0), printed.at(1));
    QVERIFY(std::abs(std::remainder(-top.angle() - degrees, 360)) < 1e-6);
    QVERIFY(std::abs(top.length() - place.width() * 8) < 1e-6);
}

void PrintingTest::orderOfPainting()
{
    const auto label = [](const char *json) { return deskforms::text("label", {10, 5, 50, 6}, settings(json)); };
    const std::unique_ptr<Form> form = deskforms::formWith(
        {label(R"({"text":"top","z":5})"), label(R"({"text":"first"})"), label(R"({"text":"second"})"),
         label(R"({"text":"bottom","z":-5})"), label(R"({"text":"third"})")});
    QVERIFY(form);
    RecordingDevice device;
    paintOn(&device, form.get());
    QCOMPARE(textsOn(device), QStringList({QStringLiteral("bottom"), QStringLiteral("first"), QStringLiteral("second"),
                                           QStringLiteral("third"), QStringLiteral("top")}));
}

// A batch sets values and prints without a turn of the event loop in between.
void PrintingTest::fontsFitWithoutEventLoop()
{
    const std::unique_ptr<Form> form =
        deskforms::formWith({deskforms::text("edit", {10, 10, 20, 6}, settings(R"({"id":"name","fill":"shrink"})"))});
    QVERIFY(form);
    const QString name = QStringLiteral("Northern Sample Supplies Limited");
    form->objectWithId(QStringLiteral("name"))->setContentData(name);
    RecordingDevice device;
    paintOn(&device, form.get());
    const QVector<PaintCommand> texts = device.commands(PaintCommand::Text);
    QCOMPARE(texts.size(), 1);
    QCOMPARE(texts.first().text, name);
    QVERIFY(QFontMetricsF(texts.first().font).horizontalAdvance(name) <= 160);
}

void PrintingTest::secondPageAfterTheFirst()
{
    const std::unique_ptr<Form> form = deskforms::formWith(
        {deskforms::text("edit", {10, 10, 60, 6}, settings(R"({"id":"payee","preset":"first"})")),
         deskforms::text("label", {10, 20, 60, 6}, settings(R"({"text":"hidden","visible":false})"))});
    QVERIFY(form);
    RecordingDevice device;
    paintOn(&device, form.get());
    QCOMPARE(textsOn(device), QStringList(QStringLiteral("first")));
    device.clear();
    form->objectWithId(QStringLiteral("payee"))->setContentData(QStringLiteral("second"));
    paintOn(&device, form.get());
    QCOMPARE(textsOn(device), QStringList(QStringLiteral("second")));
}

void PrintingTest::knownFormats_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isKnown");
    const auto add = [](const char *name, bool isKnown) {
        QTest::newRow(*name ? name : "no name") << QString::fromLatin1(name) << isKnown;
    };
    add("page.pdf", true);
    add("page.png", true);
    add("page.svg", true);
    add("page.PDF", true);
    add("folder.x/page.2.Svg", true);
    add("page.pdf.bak", false);
    add("page.jpg", false);
    add("pdf", false);
    add("page.pdf/", false);
    add("folder.pdf/page", false);
    add("", false);
}

void PrintingTest::knownFormats()
{
    QFETCH(QString, name);
    QFETCH(bool, isKnown);
    QCOMPARE(printing::isKnownFormat(name), isKnown);
    if (isKnown)
        return;
    const std::unique_ptr<Form> form = deskforms::formWith({});
    QVERIFY(form);
    QCOMPARE(printing::write(form.get(), name, 300),
             name + QStringLiteral(": expected a name that ends with .pdf, .png or .svg"));
}

void PrintingTest::failures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("dpi");
    QTest::addColumn<QString>("error");

    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("folder.pdf")));
    QTest::newRow("folder is missing") << QStringLiteral("/nowhere/page.pdf") << 100.0 << 300
                                       << QStringLiteral("cannot be written: ");
    QTest::newRow("folder takes no files")
        << QStringLiteral("/proc/page.png") << 100.0 << 300 << QStringLiteral("cannot be written: ");
    QTest::newRow("name of a folder") << inFolder(QStringLiteral("folder.pdf")) << 100.0 << 300
                                      << QStringLiteral("cannot be written: ");
    QTest::newRow("image beyond a gigabyte") << inFolder(QStringLiteral("large.png")) << 10000.0 << 4800
                                             << QStringLiteral("a page of 10000 x 60 mm is too large at 4800 dpi");
}

void PrintingTest::failures()
{
    QFETCH(QString, name);
    QFETCH(double, width);
    QFETCH(int, dpi);
    QFETCH(QString, error);
    const std::unique_ptr<Form> form = deskforms::formWith({});
    QVERIFY(form);
    form->pageSize.setWidth(width);
    const QString found = printing::write(form.get(), name, dpi);
    QVERIFY2(found.startsWith(name + QStringLiteral(": ") + error), qPrintable(found));
    QVERIFY(!found.contains(QLatin1Char('\n')));
    QVERIFY(!QFileInfo(name).isFile());
}

void PrintingTest::fullDisk_data()
{
    QTest::addColumn<QString>("suffix");
    for (const char *suffix : {"pdf", "png", "svg"})
        QTest::newRow(suffix) << QString::fromLatin1(suffix);
}

void PrintingTest::fullDisk()
{
    QFETCH(QString, suffix);
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("page.") + suffix);
    QVERIFY(deskforms::write(name, "as it was"));
    const std::unique_ptr<Form> form = deskforms::readFile(measuredPage(8));
    QVERIFY(form);
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{100, before.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
    const QString error = printing::write(form.get(), name, 300);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &before), 0);
    QVERIFY2(error.startsWith(name + QStringLiteral(": cannot be written: ")), qPrintable(error));
    QCOMPARE(deskforms::content(name), QByteArrayLiteral("as it was"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

QTEST_MAIN(PrintingTest)
#include "tst_printing.moc"
