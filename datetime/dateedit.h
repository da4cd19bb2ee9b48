// SPDX-License-Identifier: MIT
#pragma once

#include "datetime/datetimeeditprototype.h"

/// Sections of a date: year, month and day in the order and the style that are set. Starts with the current date.
class TAVRO_EXPORT DateEdit : public DateTimeEditPrototype
{
    Q_OBJECT

public:
    explicit DateEdit(QWidget *parent = nullptr);
    ~DateEdit() override;

    /// An invalid date shows empty sections.
    void setDateTime(const QDateTime &dateTime) override;
    /// Builds the sections anew.
    void setSeperatorType(const Datetime_Seperator_Type &type) override;
    /// Builds the sections anew and keeps their widths.
    void setIsShowSeperator(bool show) override;

    DateOrderType orderType() const;
    /// Builds the sections anew. Numbers beyond the named orders leave none.
    void setOrderType(const DateOrderType &order);
    int textStyle() const;
    /// One of the date styles of Datetime_Format; numbers beyond them leave the texts as they were. Builds the sections
    /// anew.
    void setTextStyle(int style);

private:
    void rebuild();
    void updateTexts();

    std::array<QString, 3> m_texts;
    std::array<int, 3> m_places = {-1, -1, -1};
    int m_textStyle = Dt_Arabic;
    DateOrderType m_orderType = Order_YMD;
};
