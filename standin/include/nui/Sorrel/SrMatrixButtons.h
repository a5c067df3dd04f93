// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

class QAbstractButton;

namespace Vexa {

class ButtonGrid;

/// A grid of buttons. A button has a text, an icon (given by the path of a file or resource), a tool tip and
/// the name of an action, held in four parallel row-major lists: the button at (r, c) has the index r *
/// column() + c. The lists are kept as given: missing values are empty, values beyond the grid are not shown.
class SORREL_EXPORT AbstractMatrixOptions : public QWidget {
    Q_OBJECT
    Q_PROPERTY(unsigned int row READ row WRITE setRow)
    Q_PROPERTY(unsigned int column READ column WRITE setColumn)
    Q_PROPERTY(QStringList textList READ textList WRITE setTextList)
    Q_PROPERTY(QStringList iconList READ iconList WRITE setIconList)
    Q_PROPERTY(QStringList toolTips READ toolTips WRITE setToolTips)
    Q_PROPERTY(QStringList actionList READ actionList WRITE setActionList)

public:
    /// The numbers of rows and columns are kept as given; at most 99 of each are ever made.
    unsigned int row() const;
    void setRow(unsigned int rows);
    unsigned int column() const;
    void setColumn(unsigned int columns);

    QStringList textList() const;
    /// Applies texts and icons again even if the list is the same, since an icon's resource may have changed.
    void setTextList(const QStringList &texts);
    QStringList iconList() const;
    void setIconList(const QStringList &icons);
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);
    QStringList actionList() const { return m_actionList; }
    void setActionList(const QStringList &actions) { m_actionList = actions; }

    /// The button at a flat index, null where there is none. The grid owns it.
    QAbstractButton *button(int index);

    QSize sizeHint() const override;

public slots:
    /// Lays out the buttons at once; the setters do it with the next round of events.
    void updateGeomtries();

signals:
    void buttonClicked(int index);
    /// The user clicked a button that names an action.
    void actionTriggered(const QString &action);

protected:
    using ButtonMaker = QAbstractButton *(*)(QWidget *parent);

    AbstractMatrixOptions(ButtonMaker makeButton, QWidget *parent);

private:
    ButtonGrid *m_grid;
    QStringList m_actionList;
};

class SORREL_EXPORT MatrixPushButtons : public AbstractMatrixOptions {
    Q_OBJECT

public:
    explicit MatrixPushButtons(QWidget *parent = nullptr);
};

class SORREL_EXPORT MatrixRadioButtons : public AbstractMatrixOptions {
    Q_OBJECT

public:
    explicit MatrixRadioButtons(QWidget *parent = nullptr);
};

class SORREL_EXPORT MatrixCheckBoxes : public AbstractMatrixOptions {
    Q_OBJECT

public:
    explicit MatrixCheckBoxes(QWidget *parent = nullptr);
};

} // namespace Vexa
