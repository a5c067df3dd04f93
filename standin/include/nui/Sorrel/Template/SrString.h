// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <nui/Sorrel/Template/SrTemplate.h>

class QLineEdit;

namespace Vexa {

/// A captioned line of text.
class SORREL_EXPORT String : public TemplateWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly)

public:
    explicit String(QWidget *parent = nullptr);

    QString text() const;
    QString placeholderText() const;
    void setPlaceholderText(const QString &text);
    bool isReadOnly() const;
    void setReadOnly(bool readOnly);

public Q_SLOTS:
    void setText(const QString &text);
    void clear();

Q_SIGNALS:
    void textChanged(const QString &text);
    void editingFinished();

private:
    QLineEdit *m_edit;
};

} // namespace Vexa
