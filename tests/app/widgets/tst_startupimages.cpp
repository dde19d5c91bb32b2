#include "app/widgets/startupimages.h"

#include <QApplication>
#include <QImage>
#include <QPixmap>
#include <QtTest>

#include <optional>

// Runs at a device pixel ratio of 2, so that the "@2x" siblings are part of
// every icon, as on a high-DPI screen.
class TestStartupImages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void preloadedIconsMatchThoseReadDirectly();
    void otherPathsAreReadOnDemand_data();
    void otherPathsAreReadOnDemand();

private:
    std::optional<StartupImages> m_images;
};

namespace {

QImage largestImage(const QIcon& icon)
{
    QSize largest;
    if (icon.availableSizes().isEmpty())
        return QImage();
    for (const QSize& size : icon.availableSizes())
        largest = size.width() > largest.width() ? size : largest;
    return icon.pixmap(largest).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void compareIcons(const QIcon& actual, const QIcon& expected)
{
    QList<QSize> actualSizes = actual.availableSizes();
    QList<QSize> expectedSizes = expected.availableSizes();
    const auto byWidth = [](const QSize& a, const QSize& b) { return a.width() < b.width(); };
    std::sort(actualSizes.begin(), actualSizes.end(), byWidth);
    std::sort(expectedSizes.begin(), expectedSizes.end(), byWidth);
    QCOMPARE(actualSizes, expectedSizes);
    QCOMPARE(largestImage(actual), largestImage(expected));
}

} // namespace

void TestStartupImages::initTestCase()
{
    QCOMPARE(qApp->devicePixelRatio(), 2.0);
    m_images.emplace();
}

void TestStartupImages::cleanupTestCase()
{
    m_images.reset();
    // Without an instance every path is read on demand.
    const QString logo = QStringLiteral(":/images/logo_parvel.png");
    compareIcons(StartupImages::icon(logo), QIcon(logo));
}

void TestStartupImages::preloadedIconsMatchThoseReadDirectly()
{
    const QStringList paths = StartupImages::preloadedPaths();
    QVERIFY(paths.contains(QStringLiteral(":/images/Cirro Manager.ico")));
    QVERIFY(paths.contains(QStringLiteral(":/images/logo_parvel.png")));
    for (const QString& path : paths) {
        const QIcon preloaded = StartupImages::icon(path);
        QVERIFY2(!preloaded.isNull(), qPrintable(path));
        compareIcons(preloaded, QIcon(path));
        // Asking again gives the same icon; the decoded images are kept.
        compareIcons(StartupImages::icon(path), preloaded);
    }
    // The window icon holds every size of the .ico file.
    QCOMPARE(StartupImages::icon(QStringLiteral(":/images/Cirro Manager.ico")).availableSizes().size(), 4);
    // The logo comes with its "@2x" sibling.
    QCOMPARE(StartupImages::icon(QStringLiteral(":/images/logo_parvel.png")).availableSizes().size(), 2);
}

void TestStartupImages::otherPathsAreReadOnDemand_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    QTest::newRow("resource image") << QStringLiteral(":/images/usb_connect.png") << true;
    QTest::newRow("missing file") << QStringLiteral(":/images/no-such-image.png") << false;
    QTest::newRow("not an image") << QStringLiteral(":/images/images.qrc") << false;
}

void TestStartupImages::otherPathsAreReadOnDemand()
{
    QFETCH(QString, path);
    QFETCH(bool, exists);
    const QIcon icon = StartupImages::icon(path);
    QCOMPARE(!icon.availableSizes().isEmpty(), exists);
    compareIcons(icon, QIcon(path));
}

int main(int argc, char* argv[])
{
    qputenv("QT_SCALE_FACTOR", "2");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    TestStartupImages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_startupimages.moc"
