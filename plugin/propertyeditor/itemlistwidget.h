// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QBasicTimer>
#include <QtWidgets/QListWidget>

namespace qdesigner_internal {

class RowSizes;

/// A list that opens at once with any number of items and takes a change of one without measuring the others
/// again. Rows that can be seen have the size that a plain QListWidget gives them; the others are taken for
/// as high as the first until they are measured, in the background. Rows do not wrap.
class ItemListWidget : public QListWidget {
    Q_OBJECT
public:
    explicit ItemListWidget(QWidget *parent = nullptr);

    void doItemsLayout() override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void reset() override;

signals:
    /// The user has dragged the selected rows before \a row; they are not moved yet.
    void rowsDropped(int row);

protected:
    void dropEvent(QDropEvent *event) override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QList<QListWidgetItem *> items) const override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

protected slots:
    void rowsInserted(const QModelIndex &parent, int first, int last) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
        const QVector<int> &roles = QVector<int>()) override;

private slots:
    void forgetRemovedRows(const QModelIndex &parent, int first, int last);
    void forgetAllSizes();

private:
    bool measureVisibleRows();
    bool measureRows(int first, int last);

    RowSizes *m_sizes;
    QBasicTimer m_measureTimer;
    // Whether rows were measured since the last layout that are not as large as it took them for.
    bool m_misplaced = false;
};

} // namespace qdesigner_internal
