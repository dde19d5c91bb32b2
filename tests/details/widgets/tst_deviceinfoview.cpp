#include "details/deviceinfomodel.h"
#include "details/widgets/deviceinfoview.h"

#include "deviceinfotestsupport.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

using namespace DeviceInfoTestSupport;

namespace {

// Marks every text of the details contexts, so that an untranslated one shows.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char* = nullptr, int = -1) const override
    {
        const QByteArray name(context);
        if (name != "DeviceInfoModel" && name != "DeviceInfoView")
            return QString();
        return QStringLiteral("[") + QString::fromUtf8(sourceText) + QStringLiteral("]");
    }
};

QModelIndex at(const DeviceInfoView& view, const QStringList& path, int column = 0)
{
    return rowAt(*view.model(), path, column);
}

void selectRow(DeviceInfoView& view, const QStringList& path)
{
    view.selectionModel()->select(at(view, path), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QStringList allLabels(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList labels;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        labels << index.data().toString() << allLabels(model, index);
    }
    return labels;
}

} // namespace

class TestDeviceInfoView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void copyValues_data();
    void copyValues();
    void copyWithoutSelectionKeepsTheClipboard();
    void contextMenuOffersTheCopy_data();
    void contextMenuOffersTheCopy();
    void builtTreeOpensGroupsButNotFlagLists();
    void refreshKeepsExpansionAndSelection();
    void languageChangeRelabelsEverything();
    void forwardsTheModelsRequest();

private:
    Camera m_camera = gige([](Record& record) {
        record.info.driverVersion = PV_VERSION(4, 97, 1203);
        record.info.minStarterFirmware = PV_VERSION(3, 0, 0);
        record.info.maxStarterFirmware = PV_VERSION(3, 9, 9999);
        record.info.comPortOffset = 2;
    });
};

void TestDeviceInfoView::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestDeviceInfoView::copyValues_data()
{
    QTest::addColumn<QList<QStringList>>("rows");
    QTest::addColumn<QList<QStringList>>("cells"); // path + column number as the last element
    QTest::addColumn<QString>("copied");

    const QStringList driver{"Local driver"};
    QTest::newRow("whole rows, one parent")
        << QList<QStringList>{driver + QStringList{"Max. compatible starter FW"}, driver + QStringList{"ETH version"},
                              driver + QStringList{"Min. compatible starter FW"}}
        << QList<QStringList>()
        << "ETH version\t4.97.1203\nMin. compatible starter FW\t3.00.0000\nMax. compatible starter FW\t3.09.9999";
    QTest::newRow("one value") << QList<QStringList>()
                               << QList<QStringList>{{"Device", "General", "COM port number", "1"}} << "102";
    QTest::newRow("label and value of different rows")
        << QList<QStringList>()
        << QList<QStringList>{{"Local driver", "Max. compatible starter FW", "1"}, {"Local driver", "ETH version", "0"}}
        << "ETH version\n3.09.9999";
    QTest::newRow("group row") << QList<QStringList>{{"Local driver"}} << QList<QStringList>() << "Local driver\t";
}

void TestDeviceInfoView::copyValues()
{
    QFETCH(QList<QStringList>, rows);
    QFETCH(QList<QStringList>, cells);
    QFETCH(QString, copied);

    DeviceInfoView view;
    view.Update(&m_camera, true);
    for (const QStringList& row : rows)
        selectRow(view, row);
    for (QStringList cell : cells) {
        const int column = cell.takeLast().toInt();
        view.selectionModel()->select(at(view, cell, column), QItemSelectionModel::Select);
    }
    view.copyValues();
    QCOMPARE(QGuiApplication::clipboard()->text(QClipboard::Clipboard), copied);
}

void TestDeviceInfoView::copyWithoutSelectionKeepsTheClipboard()
{
    DeviceInfoView view;
    view.Update(&m_camera, true);
    QGuiApplication::clipboard()->setText("kept");
    view.copyAction()->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("kept"));

    selectRow(view, {"Local driver", "ETH version"});
    view.copyAction()->trigger();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString("ETH version\t4.97.1203"));
}

void TestDeviceInfoView::contextMenuOffersTheCopy_data()
{
    QTest::addColumn<bool>("selected");
    QTest::newRow("nothing selected") << false;
    QTest::newRow("a row selected") << true;
}

void TestDeviceInfoView::contextMenuOffersTheCopy()
{
    QFETCH(bool, selected);
    DeviceInfoView view;
    view.Update(&m_camera, true);
    if (selected)
        selectRow(view, {"Local driver"});
    QStringList offered;
    bool enabled = false;
    QTimer::singleShot(0, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            for (const QAction* action : menu->actions())
                offered << action->text();
            enabled = menu->actions().value(0) && menu->actions().first()->isEnabled();
            menu->close();
        }
    });
    view.onCustomContextMenu(QPoint(5, 5));
    QCOMPARE(offered, QStringList{"Copy item values"});
    QCOMPARE(enabled, selected);
}

void TestDeviceInfoView::builtTreeOpensGroupsButNotFlagLists()
{
    DeviceInfoView view;
    view.Update(&m_camera, true);
    for (const QStringList& open : {QStringList{"Device"}, QStringList{"Device", "General"},
                                    QStringList{"Device", "Network"}, QStringList{"Device", "Network", "DHCP state"},
                                    QStringList{"Local network adapter", "Settings"}, QStringList{"Local driver"}})
        QVERIFY2(view.isExpanded(at(view, open)), qPrintable(open.join('/')));
    for (const char* flags : {"Device status flags", "Device control status"})
        QVERIFY2(!view.isExpanded(at(view, {"Device", "General", flags})), qPrintable(flags));
    QVERIFY(view.columnWidth(0)
            > view.fontMetrics().horizontalAdvance("Runtime firmware version") + 2 * view.indentation());
}

void TestDeviceInfoView::refreshKeepsExpansionAndSelection()
{
    DeviceInfoView view;
    view.Update(&m_camera, true);
    const QStringList paired{"Device", "General", "Device status flags", "Paired"};
    view.expand(at(view, {"Device", "General", "Device status flags"}));
    view.collapse(at(view, {"Device", "Network"}));
    selectRow(view, paired);
    view.setCurrentIndex(at(view, paired));

    const Camera changed = gige([](Record& record) { record.info.deviceStatus = 0x400; });
    view.Update(&changed, false);
    QVERIFY(view.isExpanded(at(view, {"Device", "General", "Device status flags"})));
    QVERIFY(!view.isExpanded(at(view, {"Device", "Network"})));
    QVERIFY(view.selectionModel()->isRowSelected(at(view, paired).row(), at(view, paired).parent()));
    QCOMPARE(view.currentIndex(), at(view, paired));
    QCOMPARE(at(view, paired, 1).data().toString(), QString("true"));

    view.Update(&changed, true);
    QVERIFY(!view.isExpanded(at(view, {"Device", "General", "Device status flags"})));
    QVERIFY(!view.selectionModel()->hasSelection());
}

// Every label, flag name and truth value is translated in the details contexts.
void TestDeviceInfoView::languageChangeRelabelsEverything()
{
    DeviceInfoView view;
    QSignalSpy needed(&view, &DeviceInfoView::updateNeeded);
    connect(&view, &DeviceInfoView::updateNeeded, &view, [&](bool force) { view.Update(&m_camera, force); });
    view.Update(&m_camera, true);

    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCoreApplication::processEvents();
    const QStringList labels = allLabels(*view.model());
    const QString paired = at(view, {"[Device]", "[General]", "[Device status flags]", "[Paired]"}, 1).data().toString();
    const QString copy = view.copyAction()->text();
    const QString header = view.model()->headerData(1, Qt::Horizontal).toString();
    QCoreApplication::removeTranslator(&translator);
    QCoreApplication::processEvents();

    QVERIFY(!needed.isEmpty());
    QVERIFY(needed.first().first().toBool());
    QCOMPARE(labels.size(), 100);
    for (const QString& label : labels)
        QVERIFY2(label.startsWith('[') && label.endsWith(']'), qPrintable(label));
    QCOMPARE(paired, QString("[false]"));
    QCOMPARE(copy, QString("[Copy item values]"));
    QCOMPARE(header, QString("[Values]"));
    QCOMPARE(view.copyAction()->text(), QString("Copy item values"));
    QVERIFY(at(view, {"Device", "General", "Device status flags", "Paired"}).isValid());
}

void TestDeviceInfoView::forwardsTheModelsRequest()
{
    DeviceInfoView view;
    QSignalSpy needed(&view, &DeviceInfoView::updateNeeded);
    emit view.deviceInfoModel()->updateNeeded(true);
    emit view.deviceInfoModel()->updateNeeded(false);
    QCOMPARE(needed.count(), 2);
    QCOMPARE(needed.at(0).first().toBool(), true);
    QCOMPARE(needed.at(1).first().toBool(), false);
}

QTEST_MAIN(TestDeviceInfoView)
#include "tst_deviceinfoview.moc"
