// SPDX-License-Identifier: BSD-3-Clause
// What assistive programs are told of the controls that are no controls of Qt's with another name.
#include <QtCore/QVariant>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QWidget>

namespace Vexa {

namespace {

struct ControlRole {
    const char *className;
    QAccessible::Role role;
    const char *nameProperty; ///< null where a control has no text of its own
};
// A class stands for those that derive from it, too.
constexpr ControlRole controlRoles[] = {
    {"Vexa::TemplateWidget", QAccessible::Grouping, "title"},
    {"Vexa::AbstractMatrixOptions", QAccessible::Grouping, nullptr},
    {"Vexa::MatrixPopButtons", QAccessible::ToolBar, nullptr},
    {"Vexa::CheckableTextComboBox", QAccessible::Grouping, nullptr},
    {"Vexa::ColorPanel", QAccessible::ColorChooser, nullptr},
    {"Vexa::ColorPicker", QAccessible::ColorChooser, nullptr},
    {"Vexa::DrawbackBox", QAccessible::Grouping, "shownTitle"},
    {"Vexa::DrawbackBoxGroup", QAccessible::Grouping, nullptr},
    {"Vexa::Form", QAccessible::Form, "windowTitle"},
    {"Vexa::FormProxy", QAccessible::StaticText, "formName"},
    {"Vexa::Line", QAccessible::Separator, nullptr},
    {"Vexa::LineType", QAccessible::Grouping, nullptr},
    {"Vexa::LineWidth", QAccessible::Grouping, nullptr},
    {"Vexa::Pane", QAccessible::Grouping, "title"},
    {"Vexa::RealNumberSlider", QAccessible::Grouping, nullptr},
    {"Vexa::SelectList", QAccessible::Grouping, nullptr},
};

class ControlInterface : public QAccessibleWidget {
public:
    ControlInterface(QWidget *control, const ControlRole &row)
        : QAccessibleWidget(control, row.role)
        , m_nameProperty(row.nameProperty)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        QString given = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !given.isEmpty() || !m_nameProperty)
            return given;
        return widget()->property(m_nameProperty).toString();
    }

private:
    const char *const m_nameProperty;
};

bool isOurs(const QMetaObject *metaObject) { return qstrncmp(metaObject->className(), "Vexa::", 6) == 0; }

bool isClass(const QMetaObject *metaObject, const char *className)
{
    return qstrcmp(metaObject->className(), className) == 0;
}

/// Qt asks for the classes of an object from its own on, and searches for plugins at each that nobody
/// answers. So the first of ours that is asked for gets the answer, on behalf of its base classes, too.
QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    if (!object || !object->isWidgetType() || !className.startsWith(QLatin1String("Vexa::")))
        return nullptr;
    auto *widget = static_cast<QWidget *>(object);
    // An application may have derived a class of its own.
    const QMetaObject *metaObject = object->metaObject();
    while (!isOurs(metaObject))
        metaObject = metaObject->superClass();
    for (; isOurs(metaObject); metaObject = metaObject->superClass()) {
        for (const ControlRole &row : controlRoles) {
            if (isClass(metaObject, row.className))
                return new ControlInterface(widget, row);
        }
    }
    // Qt knows better for the other classes of its own.
    return isClass(metaObject, "QWidget") ? new QAccessibleWidget(widget) : nullptr;
}

/// For as long as the library is loaded.
const struct Installation {
    Installation() { QAccessible::installFactory(makeInterface); }
    ~Installation() { QAccessible::removeFactory(makeInterface); }
} installation;

} // namespace

} // namespace Vexa
