#include "camera/widgets/cameralist.h"
#include "camera/cameralistmodel.h"
#include "camera/widgets/cameratableview.h"

#include "simdriverfixture.h"

#include <QAction>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QSortFilterProxyModel>
#include <QScrollBar>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

// "text" for an enabled entry, "(text)" for a disabled one; separators skipped.
QStringList entries(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        if (!action->isSeparator())
            texts << (action->isEnabled() ? action->text() : '(' + action->text() + ')');
    }
    return texts;
}

QAction* entry(const QMenu& menu, const QString& text)
{
    for (QAction* action : menu.actions()) {
        if (action->text() == text)
            return action;
    }
    return nullptr;
}

// Handles the commands it is given, as the main window's registry does.
class HandledCommands final : public ControlStates::Handlers
{
public:
    explicit HandledCommands(QSet<ControlStates::Command> commands) : m_commands(std::move(commands)) {}
    bool isHandled(ControlStates::Command command) const override { return m_commands.contains(command); }

private:
    QSet<ControlStates::Command> m_commands;
};

// As the main window's registry does once every dialog exists.
const HandledCommands everyRequest({ControlStates::Command::OpenCamera, ControlStates::Command::IdentifyCamera,
                                    ControlStates::Command::CameraInformation,
                                    ControlStates::Command::ManualEthConfiguration,
                                    ControlStates::Command::AddReadOnlyDevice,
                                    ControlStates::Command::DeleteReadOnlyDevice,
                                    ControlStates::Command::ComPortConfiguration});

} // namespace

class TestCameraList : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void contextMenuEntries_data();
    void contextMenuEntries();
    void comPortEntryNeedsSupportAndRights();
    void entriesNobodyHandlesAreDisabled();
    void menuEntriesCarryTheSelectedCamera();
    void activationOpensTheSelectedCamera();
    void sortingKeepsTheSelection();
    void refetchKeepsOrDropsTheSelection();
    void suspendedUpdatesFetchWhenResumed();
    void timerRefreshesTheSelectedCamera();
    void rebootNeedsExactlyCtrlAlt();
    void languageChangeRebuildsTheHeaders();
    void columnsFitTheirContentsOnceShown();
    void tableAtItsSizeHintShowsEveryColumn();
    void emptyTableShowsItsPlaceholder();

private:
    void select(quint32 deviceId);

    std::unique_ptr<QWidget> window;
    std::unique_ptr<CameraList> list;
};

void TestCameraList::initTestCase()
{
    Camera::registerMetaTypes();
    qRegisterMetaType<Qt::Orientation>();
}

void TestCameraList::init()
{
    QVERIFY(reset());
    window = std::make_unique<QWidget>();
    list = std::make_unique<CameraList>(window.get());
    list->setCommandHandlers(&everyRequest);
}

void TestCameraList::cleanup()
{
    list.reset();
    window.reset();
}

void TestCameraList::select(quint32 deviceId)
{
    QVERIFY2(list->selectDevice(deviceId), qPrintable(QStringLiteral("device %1 is not listed").arg(deviceId)));
    QVERIFY(list->selectedCamera());
    QCOMPARE(list->selectedCamera()->deviceId(), deviceId);
}

void TestCameraList::contextMenuEntries_data()
{
    QTest::addColumn<int>("deviceId");
    QTest::addColumn<QStringList>("expected");

    const QString open = "&Open this camera", all = "Open &all available cameras", ident = "&Identify this camera",
                  info = "&Camera information", refresh = "&Refresh list", ip = "Manual ETH configuration",
                  readOnly = "&Add Readonly Device";
    QTest::newRow("nothing selected") << -1 << QStringList{all, refresh};
    QTest::newRow("USB 3 family") << 0 << QStringList{open, all, ident, info, refresh};
    QTest::newRow("USB 2 with information feature") << 2 << QStringList{open, all, ident, info, refresh};
    QTest::newRow("USB 2 without the feature") << 4 << QStringList{open, all, ident, '(' + info + ')', refresh};
    QTest::newRow("USB in use") << 3 << QStringList{all, ident, refresh};
    QTest::newRow("GigE ready") << 1000 << QStringList{open, all, ident, '(' + info + ')', refresh, ip, readOnly};
    QTest::newRow("GigE of another host") << 1003 << QStringList{open, all, ident, '(' + info + ')', refresh,
                                                                 '(' + ip + ')', readOnly};
    QTest::newRow("read-only device") << 1500
                                      << QStringList{open, all, ident, '(' + info + ')', refresh, "&Delete"};
    QTest::newRow("SDK GigE") << 2001 << QStringList{open, all, ident, '(' + info + ')', refresh, '(' + ip + ')',
                                                     readOnly};
}

void TestCameraList::contextMenuEntries()
{
    QFETCH(int, deviceId);
    if (deviceId >= 0)
        select(quint32(deviceId));
    const std::unique_ptr<QMenu> menu = list->createContextMenu();
    QTEST(entries(*menu), "expected");
}

void TestCameraList::comPortEntryNeedsSupportAndRights()
{
    select(0);
    const QString com = "COM port configuration";
    QVERIFY(!entry(*list->createContextMenu(), com));

    list->setHostAbilities({true, true, false});
    std::unique_ptr<QMenu> menu = list->createContextMenu();
    QAction* action = entry(*menu, com);
    QVERIFY(action);
    QVERIFY(!action->isEnabled());
    QCOMPARE(action->toolTip(), QStringLiteral("Restart with elevated privileges!"));

    list->setHostAbilities({true, true, true});
    menu = list->createContextMenu();
    QVERIFY(entry(*menu, com)->isEnabled());

    select(1000);
    QVERIFY(!entry(*list->createContextMenu(), com));
}

void TestCameraList::entriesNobodyHandlesAreDisabled()
{
    list.reset(); // one camera list per process holds the driver's events
    CameraList bare(window.get());
    QVERIFY(bare.selectDevice(1000));
    // Without handlers every request is disabled; refreshing needs none.
    QCOMPARE(entries(*bare.createContextMenu()),
             (QStringList{"(&Open this camera)", "(Open &all available cameras)", "(&Identify this camera)",
                          "(&Camera information)", "&Refresh list", "(Manual ETH configuration)",
                          "(&Add Readonly Device)"}));
    const HandledCommands identifyOnly({ControlStates::Command::IdentifyCamera});
    bare.setCommandHandlers(&identifyOnly);
    QCOMPARE(entries(*bare.createContextMenu()),
             (QStringList{"(&Open this camera)", "(Open &all available cameras)", "&Identify this camera",
                          "(&Camera information)", "&Refresh list", "(Manual ETH configuration)",
                          "(&Add Readonly Device)"}));
}

void TestCameraList::menuEntriesCarryTheSelectedCamera()
{
    QSignalSpy ident(list.get(), &CameraList::identCamera);
    QSignalSpy remove(list.get(), &CameraList::deletePMC);
    QSignalSpy open(list.get(), &CameraList::openCamera);
    QSignalSpy refreshed(list.get(), &CameraList::cameraListChanged);
    QVERIFY(ident.isValid() && remove.isValid() && open.isValid() && refreshed.isValid());

    select(1500);
    std::unique_ptr<QMenu> menu = list->createContextMenu();
    entry(*menu, "&Identify this camera")->trigger();
    entry(*menu, "&Delete")->trigger();
    entry(*menu, "Open &all available cameras")->trigger();
    entry(*menu, "&Refresh list")->trigger();

    QCOMPARE(ident.at(0).at(0).value<Camera>().deviceId(), 1500u);
    QCOMPARE(remove.at(0).at(0).value<Camera>().deviceId(), 1500u);
    QCOMPARE(refreshed.count(), 1);
    QList<quint32> opened;
    for (const Camera& camera : open.at(0).at(0).value<QList<Camera>>())
        opened << camera.deviceId();
    std::sort(opened.begin(), opened.end());
    // Not the camera in use (3), not the refused one (4), no unreachable GigE
    // (1001 without an address, 1003 of another host, 1006 behind a small-packet adapter).
    QCOMPARE(opened, (QList<quint32>{0, 1, 2, 1000, 1002, 1004, 1005, 1007, 1500, 2000, 2001}));
}

void TestCameraList::activationOpensTheSelectedCamera()
{
    QSignalSpy open(list.get(), &CameraList::openCamera);
    QVERIFY(open.isValid());
    select(2);
    emit list->view()->activated(list->view()->currentIndex());
    QCOMPARE(open.count(), 1);
    const QList<Camera> cameras = open.at(0).at(0).value<QList<Camera>>();
    QCOMPARE(cameras.size(), 1);
    QCOMPARE(cameras.at(0).deviceId(), 2u);
}

void TestCameraList::sortingKeepsTheSelection()
{
    select(1003);
    QSignalSpy changed(list.get(), &CameraList::cameraChanged);
    QVERIFY(changed.isValid());
    for (int column : {int(CameraListModel::Model), int(CameraListModel::SerialNumber)}) {
        for (Qt::SortOrder order : {Qt::DescendingOrder, Qt::AscendingOrder}) {
            list->view()->sortByColumn(column, order);
            QCOMPARE(list->view()->currentIndex().siblingAtColumn(CameraListModel::DeviceId).data().toUInt(), 1003u);
        }
    }
    QCOMPARE(changed.count(), 0);
    QCOMPARE(list->selectedCamera()->deviceId(), 1003u);
}

void TestCameraList::refetchKeepsOrDropsTheSelection()
{
    select(1001);
    QSignalSpy changed(list.get(), &CameraList::cameraChanged);
    QVERIFY(changed.isValid());

    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb", "serial": "NEWCOMER"})", &id), PV_OK);
    QVERIFY(changed.wait());
    QCOMPARE(changed.last().at(0).value<camera::optional<Camera>>()->deviceId(), 1001u);
    QCOMPARE(list->view()->currentIndex().siblingAtColumn(CameraListModel::DeviceId).data().toUInt(), 1001u);

    changed.clear();
    QCOMPARE(pvsim_UnplugCamera(1001), PV_OK);
    QVERIFY(changed.wait());
    QVERIFY(!changed.last().at(0).value<camera::optional<Camera>>());
    QVERIFY(!list->selectedCamera());
    QVERIFY(!list->view()->selection());
}

void TestCameraList::suspendedUpdatesFetchWhenResumed()
{
    const int rows = list->model()->rowCount();
    list->setUpdatesSuspended(true);
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "usb"})", nullptr), PV_OK);
    QTest::qWait(100);
    QCOMPARE(list->model()->rowCount(), rows);
    list->setUpdatesSuspended(false);
    QCOMPARE(list->model()->rowCount(), rows + 1);
    QCOMPARE(list->view()->model()->rowCount(), rows + 1);
}

void TestCameraList::timerRefreshesTheSelectedCamera()
{
    QSignalSpy changed(list.get(), &CameraList::cameraChanged);
    QVERIFY(changed.isValid());
    list->onTimeout();
    QCOMPARE(changed.count(), 0);

    select(1000);
    changed.clear();
    QCOMPARE(pvsim_ChangeCamera(1000, R"({"temperature": 55.5})"), PV_OK);
    list->setAutoRefresh(true);
    QVERIFY(list->isAutoRefreshOn());
    QVERIFY(changed.wait(3 * CameraList::refreshIntervalMs));
    QCOMPARE(changed.last().at(0).value<camera::optional<Camera>>()->temperatureText(),
             list->selectedCamera()->temperatureText());
    QCOMPARE(list->selectedCamera()->temperatureText(), Camera::temperatureText(quint16(55.5 * 16)));
    list->setAutoRefresh(false);
    QVERIFY(!list->isAutoRefreshOn());
}

void TestCameraList::rebootNeedsExactlyCtrlAlt()
{
    QCOMPARE(pvsim_SetTimeScale(1.0), PV_OK);
    select(1000);
    QTest::keyClick(list->view(), Qt::Key_R, Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
    QTest::keyClick(list->view(), Qt::Key_R, Qt::ControlModifier);
    QVERIFY(!cameraState(1000).value("rebooting").toBool());
    QTest::keyClick(list->view(), Qt::Key_R, Qt::ControlModifier | Qt::AltModifier);
    QVERIFY(cameraState(1000).value("rebooting").toBool());
}

void TestCameraList::languageChangeRebuildsTheHeaders()
{
    QSignalSpy headers(list->model(), &QAbstractItemModel::headerDataChanged);
    QVERIFY(headers.isValid());
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(list->view(), &change);
    QCOMPARE(headers.count(), 1);
}


void TestCameraList::columnsFitTheirContentsOnceShown()
{
    CameraTableView* view = list->view();
    view->setGeometry(0, 0, 900, 400);
    window->resize(900, 400);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    // The last column reaches the view's edge.
    QCOMPARE(view->horizontalHeader()->length(), view->viewport()->width());
    const int last = view->model()->columnCount() - 1;
    QList<int> shown;
    for (int column = 0; column < last; ++column)
        shown.append(view->columnWidth(column));
    // Qt's own fit: each column as wide as the larger of contents and header.
    view->resizeColumnsToContents();
    for (int column = 0; column < last; ++column)
        QCOMPARE(shown.at(column), view->columnWidth(column));
}

void TestCameraList::tableAtItsSizeHintShowsEveryColumn()
{
    // Serial numbers narrower than a column's default width.
    QCOMPARE(pvsim_LoadScenarioText(R"({"cameras": [{"kind": "usb", "serial": "1"}, {"kind": "usb", "serial": "2"},
        {"kind": "usb", "serial": "3"}, {"kind": "usb", "serial": "4"}, {"kind": "usb", "serial": "5"}]})"),
             PV_OK);
    QTRY_COMPARE(list->model()->rowCount(), 5);
    CameraTableView* view = list->view();
    // Fitted while wide, so that the last column stretched far, then narrowed;
    // rows enough for the vertical scroll bar.
    view->setGeometry(0, 0, 1400, 100);
    window->resize(1400, 100);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    select(1);
    view->resize(view->sizeHint().width(), 100);
    QVERIFY(view->verticalScrollBar()->isVisible());
    QCOMPARE(view->horizontalHeader()->length(), view->viewport()->width());
    QVERIFY(!view->horizontalScrollBar()->isVisible());
}

void TestCameraList::emptyTableShowsItsPlaceholder()
{
    CameraTableView* view = list->view();
    window->resize(600, 300);
    view->setGeometry(0, 0, 600, 300);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    const QImage withRows = view->viewport()->grab().toImage();
    view->setPlaceholderText("No cameras found.");
    // Rows hide it ...
    QCOMPARE(view->viewport()->grab().toImage(), withRows);
    QCOMPARE(pvsim_LoadScenarioText(R"({"cameras": []})"), PV_OK);
    QTRY_COMPARE(view->model()->rowCount(), 0);
    const QImage empty = view->viewport()->grab().toImage();
    // ... an empty table shows it, in its middle.
    view->setPlaceholderText(QString());
    const QImage blank = view->viewport()->grab().toImage();
    QVERIFY(empty != blank);
    QRect drawn;
    for (int y = 0; y < empty.height(); ++y) {
        for (int x = 0; x < empty.width(); ++x) {
            if (empty.pixel(x, y) != blank.pixel(x, y))
                drawn |= QRect(x, y, 1, 1);
        }
    }
    QVERIFY(qAbs(drawn.center().y() - empty.rect().center().y()) < empty.height() / 8);
    QVERIFY(qAbs(drawn.center().x() - empty.rect().center().x()) < empty.width() / 8);
}

QTEST_MAIN(TestCameraList)
#include "tst_cameralist.moc"
