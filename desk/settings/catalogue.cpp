// SPDX-License-Identifier: MIT
#include "desk/settings/catalogue.h"

#include "desk/settings/barcodesettings.h"
#include "desk/settings/cellsettings.h"
#include "desk/settings/choicesettings.h"
#include "desk/settings/datetimesettings.h"
#include "desk/settings/entrysettings.h"
#include "desk/settings/graphicsettings.h"

namespace {

struct Kind
{
    QString name;
    ObjType type;
    QVector<Setting> settings;
};

const QVector<Kind> &kinds()
{
    static const QVector<Kind> all{
        {QStringLiteral("line"), Obj_Line, graphicsettings::ofLines()},
        {QStringLiteral("rect"), Obj_Rect, graphicsettings::ofRects()},
        {QStringLiteral("edit"), Obj_Edit, entrysettings::ofEdits()},
        {QStringLiteral("label"), Obj_Label, entrysettings::ofLabels()},
        {QStringLiteral("separatedEdit"), Obj_SeperateEdit, cellsettings::ofSeparatedEdits()},
        {QStringLiteral("financialEdit"), Obj_FinancialEdit, cellsettings::ofFinancialEdits()},
        {QStringLiteral("datetime"), Obj_Datetime, datetimesettings::ofDatetimes()},
        {QStringLiteral("barcode"), Obj_Barcode, barcodesettings::ofBarcodes()},
        {QStringLiteral("checkBox"), Obj_CheckBox, choicesettings::ofCheckBoxes()},
        {QStringLiteral("comboBox"), Obj_Combx, choicesettings::ofComboBoxes()},
        {QStringLiteral("picture"), Obj_Picture, graphicsettings::ofPictures()},
        {QStringLiteral("table"), Obj_Table, graphicsettings::ofTables()},
    };
    return all;
}

} // namespace

namespace catalogue {

ObjType kindOf(const QString &name)
{
    for (const Kind &kind : kinds()) {
        if (kind.name == name)
            return kind.type;
    }
    return Obj_None;
}

QString nameOf(ObjType kind)
{
    for (const Kind &known : kinds()) {
        if (known.type == kind)
            return known.name;
    }
    return {};
}

QStringList kindNames()
{
    QStringList names;
    for (const Kind &kind : kinds())
        names.append(kind.name);
    return names;
}

const QVector<Setting> &settingsOf(ObjType kind)
{
    static const QVector<Setting> none;
    for (const Kind &known : kinds()) {
        if (known.type == kind)
            return known.settings;
    }
    return none;
}

} // namespace catalogue
