// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/SrGlobal.h>

#include <QtWidgets/QWidget>

class QBoxLayout;
class QLabel;

namespace Vexa {

/// A captioned row of an input panel: the title on the left, the input fields on the right.
/// The template controls derive from it and add their fields.
class SORREL_EXPORT TemplateWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    QString title() const;
    /// An empty title hides the caption, so that the fields take the whole width.
    void setTitle(const QString &title);

protected:
    TemplateWidget(const QString &title, QWidget *parent);

    /// Adds an input field to the right of the ones added before. The row becomes its parent.
    void addField(QWidget *field, int stretch = 0);
    QBoxLayout *fields() const { return m_fields; }

private:
    void nameFields();

    QLabel *m_caption;
    QBoxLayout *m_fields;
};

} // namespace Vexa
