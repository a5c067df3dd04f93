// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

#include <QtCore/QStringList>

namespace Vexa {

/// A captioned row with one choice out of several options. An option has a text, an icon (given by the path
/// of a file or resource), a tool tip and a data string, held in four parallel lists. The lists are kept as
/// given: where one is shorter than the others its values are empty.
class SORREL_EXPORT AbstractOptions : public TemplateWidget {
    Q_OBJECT
    Q_PROPERTY(QStringList textList READ textList WRITE setTextList)
    Q_PROPERTY(QStringList iconList READ iconList WRITE setIconList)
    Q_PROPERTY(QStringList toolTips READ toolTips WRITE setToolTips)
    Q_PROPERTY(QStringList dataList READ dataList WRITE setDataList)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    /// The length of the longest list, so an option that has only data counts.
    virtual int count() const;

    QStringList textList() const { return m_texts; }
    void setTextList(const QStringList &texts);
    QStringList iconList() const { return m_icons; }
    void setIconList(const QStringList &icons);
    QStringList toolTips() const { return m_toolTips; }
    void setToolTips(const QStringList &toolTips);
    virtual QStringList dataList() const { return m_data; }
    virtual void setDataList(const QStringList &data);

    /// The chosen option. An index without an option is kept, because the options may arrive later.
    int currentIndex() const { return m_currentIndex; }
    /// The data string of the chosen option.
    QString currentData() const { return dataList().value(m_currentIndex); }

public slots:
    void setCurrentIndex(int index);

signals:
    void currentIndexChanged(int index);

protected:
    AbstractOptions(const QString &title, QWidget *parent);

    /// Brings what the row shows up to date with the lists.
    virtual void showOptions() = 0;
    virtual void showCurrentIndex() = 0;

private:
    QStringList m_texts;
    QStringList m_icons;
    QStringList m_toolTips;
    QStringList m_data;
    int m_currentIndex = 0;
};

} // namespace Vexa
