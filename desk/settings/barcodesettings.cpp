// SPDX-License-Identifier: MIT
#include "desk/settings/barcodesettings.h"

#include "barcode/tavrobarcode.h"
#include "desk/settings/commonsettings.h"
#include "desk/settings/settingmaker.h"

#include <algorithm>

namespace barcodesettings {

namespace {

using settingmaker::choosing;
using settingmaker::member;
using settingmaker::ranged;
using B = TavroBarcode;
using Type = Setting::Type;
using Settings = QVector<Setting>;

constexpr int MostQrVersion = 40;
constexpr int AutomaticLevel = 0;
constexpr int HighestLevel = 4;

// The setting, after which the object is where it was, with its symbol fitted in.
Setting inPlace(Setting setting)
{
    setting.set = [set = setting.set](TavroPrototype &object, const QVariant &value, double scale) {
        const QRectF place = object.boundingRect();
        set(object, value, scale);
        object.setBoundingRect(place);
    };
    return setting;
}

Setting symbology()
{
    Setting setting =
        choosing(member("symbology", "Symbology", "Symbol", Type::Choice, &B::symbology, &B::setSymbology),
                 {{"code128", 20},
                  {"code128B", 60},
                  {"gs1-128", 16},
                  {"code39", 8},
                  {"ean13", -2},
                  {"ean8", -1},
                  {"upcA", 34},
                  {"upcE", 37},
                  {"ean14", 72},
                  {"interleaved2of5", 3},
                  {"standard2of5", 2},
                  {"iata2of5", 4},
                  {"dataLogic2of5", 6},
                  {"industrial2of5", 7},
                  {"telepen", 32},
                  {"msiPlessey", 47},
                  {"plessey", 86},
                  {"dataBar", 29},
                  {"dataBarLimited", 30},
                  {"dataBarExpanded", 31},
                  {"dataBarStacked", 79},
                  {"dataBarStackedOmni", 80},
                  {"dataBarExpandedStacked", 81},
                  {"pdf417", 55},
                  {"pdf417Truncated", 56},
                  {"microPdf417", 84},
                  {"qr", 58},
                  {"microQr", 97},
                  {"dataMatrix", 71},
                  {"aztec", 92},
                  {"aztecRune", 128},
                  {"hibcCode128", 98},
                  {"hibcCode39", 99},
                  {"hibcPdf417", 106},
                  {"hibcMicroPdf417", 108},
                  {"hibcQr", 104},
                  {"hibcDataMatrix", 102},
                  {"hibcAztec", 112}});
    // An object that is given the number of all forms of EAN tells the form that it had.
    setting.condition = QStringLiteral("but not 13, which does not tell ean13 from ean8");
    return inPlace(setting);
}

// A symbol is proportional or not by its symbology.
Settings commonOfBarcodes()
{
    const QStringList shared{QStringLiteral("required"), QStringLiteral("resetAtRenew")};
    Settings settings;
    for (const Setting &setting : commonsettings::ofObjects()) {
        if (setting.key != QLatin1String("proportional"))
            settings.append(setting);
    }
    // There is no editor in place, no border and no background of these settings.
    for (const Setting &setting : commonsettings::ofBoxes()) {
        if (shared.contains(setting.key))
            settings.append(setting);
    }
    return settings;
}

} // namespace

QVector<Setting> ofBarcodes()
{
    return commonOfBarcodes() +
           Settings{
               symbology(),
               inPlace(member("readableText", "Readable text", "Symbol", Type::Flag, &B::hasReadableTxt,
                              &B::setHasReadableTxt)),
               inPlace(ranged(member("qrVersion", "Version of the QR Code", "Symbol", Type::Integer, &B::QRcodeVersion,
                                     &B::setQRcodeVersion),
                              0, MostQrVersion)),
               inPlace(ranged(choosing(member("qrErrorCorrection", "Error correction of the QR Code", "Symbol",
                                              Type::Choice, &B::QRcodeErrCorrection, &B::setQRcodeErrCorrection),
                                       {{"low", 1}, {"medium", 2}, {"quartile", 3}, {"high", 4}}),
                              AutomaticLevel, HighestLevel)),
               member("keepCentre", "Grows from its centre", "Geometry", Type::Flag, &B::isKeepAtCenter,
                      &B::setIsKeepAtCenter),
               member("keepRegion", "Keeps its size", "Geometry", Type::Flag, &B::isKeepRegionSz,
                      &B::setIsKeepRegionSz),
               inPlace(commonsettings::preset("preset", "Preset")),
           };
}

bool isNamed(int symbology)
{
    static const QVector<Setting::Choice> named = barcodesettings::symbology().choices;
    return std::any_of(named.begin(), named.end(),
                       [symbology](const Setting::Choice &choice) { return choice.value == symbology; });
}

void start(TavroBarcode &object)
{
    const QRectF place = object.boundingRect();
    object.setPresetData(QString());
    object.setBoundingRect(place);
}

void setContent(TavroBarcode &object, const QVariant &content)
{
    const QRectF place = object.boundingRect();
    object.setContentData(content);
    object.setBoundingRect(place);
}

} // namespace barcodesettings
