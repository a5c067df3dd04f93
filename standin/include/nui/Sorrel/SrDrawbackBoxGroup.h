// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QLineEdit;
class QScrollBar;
class QVBoxLayout;

namespace Vexa {

/// A box with a title bar and one page, which can be drawn back to the bar. The title is the window title of
/// the page.
class SORREL_EXPORT DrawbackBox : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString shownTitle READ shownTitle DESIGNABLE false STORED false)
    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY expandedChanged)

public:
    explicit DrawbackBox(QWidget *parent = nullptr);

    /// Null without a page, and after the page was deleted or moved to another parent.
    QWidget *widget() const { return m_page; }
    /// The box becomes the parent of the page. The page before it is hidden and belongs to nobody; null only
    /// takes that one out.
    void setWidget(QWidget *page);

    QString title() const;
    /// What the title bar shows: a page without a title has its number in the group.
    QString shownTitle() const;
    bool isExpanded() const { return m_expanded; }
    void setExpanded(bool expanded);

    int headerHeight() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The title bar was clicked, or activated by the keyboard. A box outside a group then draws itself back
    /// or out.
    void headerActivated();
    /// The user has given the page another title in the title bar. \a before is the one until then.
    void titleEdited(const QString &before);
    void expandedChanged(bool expanded);
    void titleChanged(const QString &title);
    /// The page was deleted or moved away by somebody else.
    void widgetLost();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class DrawbackBoxGroup;

    /// The place in a group, from 1.
    void setNumber(int number);
    void noteOpaqueness();
    void activateHeader();
    void editTitle();
    void endEditing(bool accepted);

    QVBoxLayout *const m_layout;
    QPointer<QLineEdit> m_titleEditor;
    QWidget *m_page = nullptr;
    QString m_title;
    int m_number = 0;
    bool m_expanded = true;
};

/// Pages in drawback boxes below each other, of which the current one is drawn out.
///
/// The group is the parent of its boxes, and each box of its page. Nothing here deletes a page or a box: a
/// removed page stays a hidden child of the group until its user takes it away or puts it back, in which case
/// it gets its old box again; a box that replaceBoxes() leaves out belongs to nobody. So a history of changes
/// may hold both kinds of pointers. Pages and boxes that somebody else deletes leave the group by themselves.
class SORREL_EXPORT DrawbackBoxGroup : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    // For form editors. What is saved is the title of each page.
    Q_PROPERTY(QString currentPageTitle READ currentPageTitle WRITE setCurrentPageTitle NOTIFY
            pageTitleChanged STORED false)

public:
    explicit DrawbackBoxGroup(QWidget *parent = nullptr);

    virtual int count() const;
    /// -1 exactly when there is no page.
    virtual int currentIndex() const;
    /// Null for an index without a page.
    QWidget *widget(int index);
    DrawbackBox *box(int index) const;
    /// The window title of the page; "Page 1" and so on for a page that has none.
    QString pageTitle(int index) const;
    /// Sets the title of the current page, unless it is shown already for a page that has none.
    void setPageTitle(const QString &title);

    /// The title of the current page itself, empty for a page that has none.
    QString currentPageTitle() const;
    void setCurrentPageTitle(const QString &title);

    /// Null and pages that the group has already are ignored.
    Q_INVOKABLE void addPage(QWidget *page);
    /// An index out of range is moved into it.
    void insertPage(int index, QWidget *page);
    void removePage(int index);
    /// Shows these boxes in this order and returns how many there are: null and repeated ones are skipped. A
    /// box without a page gets an empty one. The current page stays current where it is still there.
    int replaceBoxes(QList<Vexa::DrawbackBox *> boxes);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public slots:
    /// An index without a page is ignored; in an empty group it is remembered until that page is added.
    virtual void setCurrentIndex(int index);

signals:
    /// The index of the current page changed, or another page took its place.
    void currentIndexChanged(int index);
    /// The title of the current page changed.
    void pageTitleChanged(const QString &title);
    /// The user has given a page another title in its title bar. \a before is the one until then.
    void pageTitleEdited(int index, const QString &before);
    /// The user has clicked the title bar of this page, or pressed its key, whichever page was shown before.
    void pageActivated(int index);

protected:
    bool event(QEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    class Change;
    struct RemovedPage {
        QPointer<QWidget> page;
        DrawbackBox *box;
    };

    RemovedPage takeRemoved(const QWidget *page, const DrawbackBox *box);
    void adopt(DrawbackBox *box);
    void release(DrawbackBox *box);
    void drop(int index, DrawbackBox *box);
    void setCurrent(int index);
    void scheduleLayout();
    void placeBoxes();
    int headersHeight(int boxes) const;

    QList<DrawbackBox *> m_boxes;
    QVector<RemovedPage> m_removedPages;
    QScrollBar *m_scrollBar;
    int m_current = -1;
    int m_awaited = -1;
    bool m_revealCurrent = false;
};

} // namespace Vexa
