// SPDX-License-Identifier: MIT
// Settings of a form object that are stored and answered: which of them mark the object modified is read off each line.
#include "core/tavroprototype.h"

ObjType TavroPrototype::objType() const
{
    return m_objType;
}

void TavroPrototype::setObjType(ObjType type)
{
    m_objType = type;
}

QString TavroPrototype::originalID() const
{
    return m_originalID;
}

void TavroPrototype::setOriginalID(const QString &id)
{
    m_originalID = id;
}

QString TavroPrototype::tavroID() const
{
    return m_tavroID;
}

void TavroPrototype::setTavroID(const QString &id)
{
    m_tavroID = id;
    Q_EMIT tavroIDChanged();
    m_isModified = true;
    setToolTip(m_tavroID);
}

bool TavroPrototype::isModified() const
{
    return m_isModified;
}

void TavroPrototype::setIsModified(bool modified)
{
    m_isModified = modified;
}

int TavroPrototype::borderWpx() const
{
    return m_borderWpx;
}

void TavroPrototype::setBorderWpx(int width)
{
    m_borderWpx = width;
}

bool TavroPrototype::hasBorder() const
{
    return m_hasBorder;
}

void TavroPrototype::setHasBorder(bool has)
{
    storeSetting(m_hasBorder, has);
}

unsigned int TavroPrototype::borderColor() const
{
    return m_borderColor;
}

void TavroPrototype::setBorderColor(const unsigned int &color)
{
    storeSetting(m_borderColor, color);
}

int TavroPrototype::backgroundStyle() const
{
    return m_backgroundStyle;
}

void TavroPrototype::setBackgroundStyle(int style)
{
    storeSetting(m_backgroundStyle, style);
}

unsigned int TavroPrototype::backgroundColor() const
{
    return m_backgroundColor;
}

void TavroPrototype::setBackgroundColor(const unsigned int &color)
{
    storeSetting(m_backgroundColor, color);
}

int TavroPrototype::getIniAngle() const
{
    return m_iniAngle;
}

void TavroPrototype::setIniAngle(int degrees)
{
    m_iniAngle = degrees;
}

int TavroPrototype::getRotateAngle() const
{
    return m_rotateAngle;
}

void TavroPrototype::setRotateAngle(int degrees)
{
    m_rotateAngle = degrees;
}

bool TavroPrototype::isPrint() const
{
    return m_isPrint;
}

void TavroPrototype::setIsPrint(bool print)
{
    storeSetting(m_isPrint, print);
}

bool TavroPrototype::isLocked() const
{
    return m_isLocked;
}

bool TavroPrototype::isRequired() const
{
    return m_isRequired;
}

void TavroPrototype::setIsRequired(bool required)
{
    storeSetting(m_isRequired, required);
}

bool TavroPrototype::isObjVisible() const
{
    return m_isObjVisible;
}

void TavroPrototype::setObjVisible(bool visible)
{
    storeSetting(m_isObjVisible, visible);
}

bool TavroPrototype::isObjEnabled() const
{
    return m_isObjEnabled;
}

void TavroPrototype::setObjEnabled(bool enabled)
{
    storeSetting(m_isObjEnabled, enabled);
}

bool TavroPrototype::isReadOnly() const
{
    return m_isReadOnly;
}

void TavroPrototype::setIsReadOnly(bool readOnly)
{
    storeSetting(m_isReadOnly, readOnly);
}

bool TavroPrototype::isResetAtRenew() const
{
    return m_isResetAtRenew;
}

void TavroPrototype::setIsResetAtRenew(bool reset)
{
    storeSetting(m_isResetAtRenew, reset);
}

bool TavroPrototype::isZeroForThousand() const
{
    return m_isZeroForThousand;
}

void TavroPrototype::setIsZeroForThousand(bool zero)
{
    storeSetting(m_isZeroForThousand, zero);
}

bool TavroPrototype::isZeroForPoint() const
{
    return m_isZeroForPoint;
}

void TavroPrototype::setIsZeroForPoint(bool zero)
{
    storeSetting(m_isZeroForPoint, zero);
}

int TavroPrototype::tabOrder() const
{
    return m_tabOrder;
}

void TavroPrototype::setTabOrder(int order)
{
    storeSetting(m_tabOrder, order);
}

QVariant TavroPrototype::contentData() const
{
    return m_contentData;
}

void TavroPrototype::storeContent(const QVariant &content)
{
    m_contentData = content;
}

QVariant TavroPrototype::presetData() const
{
    return m_presetData;
}

Paint_Mode TavroPrototype::paintMode() const
{
    return m_paintMode;
}

bool TavroPrototype::isProportional() const
{
    return m_isProportional;
}

void TavroPrototype::bindToDB(const QString &table, const QString &column)
{
    storeSetting(m_tableDB, table);
    storeSetting(m_columnDB, column);
}

void TavroPrototype::bindToDB(const _Database_Table_Col &column)
{
    bindToDB(column.table, column.column);
}

void TavroPrototype::unbindToDB()
{
    bindToDB(QString(), QString());
}

QString TavroPrototype::tableDB() const
{
    return m_tableDB;
}

QString TavroPrototype::columnDB() const
{
    return m_columnDB;
}

_Database_Table_Col TavroPrototype::tableColDB() const
{
    return {m_tableDB, m_columnDB};
}

bool TavroPrototype::isBindingToDB() const
{
    return !m_tableDB.isEmpty() && !m_columnDB.isEmpty();
}
