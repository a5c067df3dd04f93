// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

namespace Vexa {

class ButtonGrid;

/// A grid of flat buttons that pop up under the mouse. A button has a text, an icon (given by the path of a
/// file or resource), a tool tip and the name of an action, held in four parallel row-major lists: the button
/// at (r, c) has the index r * column() + c. The lists are kept as given: missing values are empty, values
/// beyond the grid are not shown.
class SORREL_EXPORT MatrixPopButtons : public QWidget {
    Q_OBJECT
    Q_PROPERTY(unsigned int row READ row WRITE setRow)
    Q_PROPERTY(unsigned int column READ column WRITE setColumn)
    Q_PROPERTY(QStringList textList READ textList WRITE setTextList)
    Q_PROPERTY(QStringList iconList READ iconList WRITE setIconList)
    Q_PROPERTY(QStringList toolTips READ toolTips WRITE setToolTips)
    Q_PROPERTY(QStringList actionList READ actionList WRITE setActionList)

public:
    explicit MatrixPopButtons(QWidget *parent = nullptr);

    /// The numbers of rows and columns are kept as given; at most 99 of each are ever made.
    unsigned int row() const;
    void setRow(unsigned int rows);
    unsigned int column() const;
    void setColumn(unsigned int columns);

    QStringList textList() const;
    void setTextList(const QStringList &texts);
    QStringList iconList() const;
    void setIconList(const QStringList &icons);
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);
    QStringList actionList() const { return m_actionList; }
    void setActionList(const QStringList &actions) { m_actionList = actions; }

public slots:
    /// Lays out the buttons at once; the setters do it with the next round of events.
    void updateGeomtries();

signals:
    void buttonClicked(int index);
    /// The user clicked a button that names an action.
    void actionTriggered(const QString &action);

private:
    ButtonGrid *m_grid;
    QStringList m_actionList;
};

} // namespace Vexa
