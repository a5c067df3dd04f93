// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

#include <optional>

class QAbstractButton;
class QIcon;

namespace Vexa {

/// The rows and the columns of a fresh grid control, which has cells to be seen and filled.
constexpr unsigned int initialGridSide = 2;

/// A grid of equal cells with one button each, shared by all controls that show their contents as buttons.
///
/// Changes only mark the grid; the buttons follow when they are asked for, when the size hint is, before the
/// grid is shown, or with the next round of events. They are kept from one change to the next, because an
/// undo step may change the lists of ten thousand buttons several times over.
class ButtonGrid : public QWidget {
    Q_OBJECT

public:
    using Maker = QAbstractButton *(*)(QWidget *parent);

    struct Contents {
        unsigned int rows = 0;
        unsigned int columns = 0;
        QStringList texts; ///< row-major, like the other two
        QStringList icons; ///< paths
        QStringList toolTips;

        bool operator==(const Contents &other) const;
    };

    /// At most `maximumSide` rows and columns are ever made, whatever the contents ask for.
    ButtonGrid(Maker makeButton, unsigned int maximumSide, QWidget *parent);

    const Contents &contents() const { return m_contents; }
    void setContents(const Contents &contents);
    /// The button at a row-major index of the contents, null where there is none.
    QAbstractButton *button(int index);
    /// Checks the button at `index` and no other one, now and after every change.
    void setCheckedIndex(int index);
    /// Brings the buttons up to date and lays them out now.
    void layOutNow();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void clicked(int index);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void schedule();
    void refresh();
    void updateButtons();
    void updateChecks();
    void makeButtons(int count);
    void measure();
    void place();

    const Maker m_makeButton;
    const unsigned int m_maximumSide;
    QWidget *const m_panel; ///< the parent of the buttons
    Contents m_contents;
    QVector<QAbstractButton *> m_buttons; ///< row-major in the grid that is made
    QVector<QString> m_iconPaths; ///< of the icons that the buttons have
    QSize m_cell;
    QRect m_placedCells; ///< columns, rows and cell size of the last layout
    int m_rows = 0; ///< of the grid that is made
    int m_columns = 0;
    std::optional<int> m_checkedIndex; ///< nothing for a grid that is not one choice
    bool m_stale = false;
    bool m_scheduled = false;
    bool m_iconsStale = false;
    bool m_iconsAwaited = false; ///< missing icons were looked for again
};

} // namespace Vexa
