// SPDX-License-Identifier: BSD-3-Clause
#include "unittest.h"

#include "extensions/extrainfoextension.h"

#include <QtDesigner/QExtensionManager>

#include <vector>

namespace {

/// So large that it does not live where a plain widget lived.
class LargeWidget : public QWidget {
public:
    char padding[4096];
};

} // namespace

class TestExtraInfoExtension : public QuietTest {
    Q_OBJECT

private slots:
    void factoryForgetsDeadWidgetsAndNoOthers()
    {
        const QString iid = QStringLiteral("org.qt-project.Qt.Designer.ExtraInfo.2");
        QExtensionManager manager;
        ExtraInfoExtensionFactory factory(&manager);
        QWidget living;
        const std::unique_ptr<QObject> extension(factory.extension(&living, iid));
        std::vector<std::unique_ptr<QWidget>> widgets;
        for (int i = 0; i < 5000; ++i) {
            widgets.push_back(std::make_unique<QWidget>());
            delete factory.extension(widgets.back().get(), iid);
        }
        QCOMPARE(factory.knownCount(), 5001);
        widgets.clear();
        for (int i = 0; i < 5000; ++i) {
            widgets.push_back(std::make_unique<LargeWidget>());
            delete factory.extension(widgets.back().get(), iid);
        }
        QVERIFY2(factory.knownCount() < 8100, qPrintable(QString::number(factory.knownCount())));
        QCOMPARE(factory.extension(&living, iid), extension.get());
    }
};

QTEST_MAIN(TestExtraInfoExtension)
#include "tst_extrainfoextension.moc"
