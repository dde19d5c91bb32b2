#include <QtTest>

#include <QDirIterator>
#include <QIcon>
#include <QImageReader>
#include <QMovie>
#include <QPixmap>

#include <cstdlib>

namespace {

const QString root = QStringLiteral(":/images/");

struct Picture
{
    const char* name;
    QSize size; // device-independent pixels
};

// Every picture the application loads by name, each with a twin "@2x" at double resolution.
QVector<Picture> pictures()
{
    const QSize icon(16, 16);
    const QSize flag(16, 11);
    const QSize camera(96, 96);
    return {
        {"usb_connect.png", icon},
        {"usb_disconnected.png", icon},
        {"usb_warning.png", icon},
        {"eth_connect.png", icon},
        {"eth_disconnected.png", icon},
        {"eth_warning.png", icon},
        {"eth_warning2.png", icon},
        {"openplay.png", icon},
        {"delete2.png", icon},
        {"led_on.png", icon},
        {"led_off.png", icon},
        {"ethadapter.png", icon},
        {"ethadapter_disabled.png", icon},
        {"Cirro.png", icon},
        {"logo_parvel.png", QSize(160, 48)},
        {"lang/de.png", flag},
        {"lang/zh_CN.png", flag},
        {"lang/en.png", flag},
        {"cam_usb.png", camera},
        {"cam_41.png", camera},
        {"cam_42.png", camera},
        {"cam_43.png", camera},
        {"cam_45.png", camera},
        {"cam_60.png", camera},
        {"cam_62.png", camera},
        {"cam_63.png", camera},
        {"cam_64.png", camera},
        {"cam_64f.png", camera},
        {"cam_64x.png", camera},
        {"cam_eth.png", camera},
        {"cam_81.png", camera},
        {"cam_81v.png", camera},
        {"cam_82.png", camera},
        {"cam_84.png", camera},
        {"cam_88.png", camera},
        {"cam_8a.png", camera},
        {"cam_8b.png", camera},
        {"cam_8c.png", camera},
        {"cam_8cx.png", camera},
        {"cam_f1.png", camera},
        {"cam_summit.png", camera},
        {"cam_pmc.png", camera},
    };
}

QString twinOf(const QString& name)
{
    return QString(name).insert(name.lastIndexOf(QLatin1Char('.')), QLatin1String("@2x"));
}

// Mean difference per channel of two images of one size, compared premultiplied so that
// the colour of transparent pixels does not count.
double meanDifference(const QImage& a, const QImage& b)
{
    const QImage x = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    qint64 sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int col = 0; col < x.width(); ++col) {
            const QRgb p = x.pixel(col, row);
            const QRgb q = y.pixel(col, row);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q))
                   + std::abs(qBlue(p) - qBlue(q)) + std::abs(qAlpha(p) - qAlpha(q));
        }
    }
    return double(sum) / (4.0 * x.width() * x.height());
}

bool cornerIsSeeThrough(const QImage& image)
{
    return image.hasAlphaChannel() && qAlpha(image.pixel(0, 0)) < 255;
}

} // namespace

class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void pictureAndTwin_data();
    void pictureAndTwin();
    void twinShowsTheSamePicture_data();
    void twinShowsTheSamePicture();
    void busyIndicatorLoops();
    void windowIconHoldsEverySize();
    void resourcesAreExactlyTheseFiles();
};

void TestResources::pictureAndTwin_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    for (const Picture& picture : pictures())
        QTest::newRow(picture.name) << QString::fromLatin1(picture.name) << picture.size;
}

void TestResources::pictureAndTwin()
{
    QFETCH(QString, name);
    QFETCH(QSize, size);

    const QPixmap single(root + name);
    QVERIFY(!single.isNull());
    QCOMPARE(single.size(), size);
    // shown in table cells, trees and group boxes: nothing may paint a background of its own
    QVERIFY(cornerIsSeeThrough(single.toImage()));

    const QPixmap twin(root + twinOf(name));
    QVERIFY(!twin.isNull());
    QCOMPARE(twin.size(), size * 2);
    QCOMPARE(twin.devicePixelRatio(), 2.0); // taken from the "@2x" in the name
    QVERIFY(cornerIsSeeThrough(twin.toImage()));
}

void TestResources::twinShowsTheSamePicture_data()
{
    pictureAndTwin_data();
}

void TestResources::twinShowsTheSamePicture()
{
    // The drawing at double resolution, brought down to single size, must be closer to the
    // single-size drawing than to any other picture of that size: a twin rendered from the
    // wrong source is caught.
    QFETCH(QString, name);
    QFETCH(QSize, size);
    const QImage full(root + twinOf(name));
    QVERIFY(!full.isNull());
    const QImage twin = full.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double own = meanDifference(twin, QImage(root + name));
    for (const Picture& other : pictures()) {
        const QString otherName = QLatin1String(other.name);
        if (other.size != size || otherName == name)
            continue;
        const double foreign = meanDifference(twin, QImage(root + otherName));
        QVERIFY2(own < foreign, qPrintable(QStringLiteral("%1 at 2x is more like %2 (%3) than itself (%4)")
                                               .arg(name, otherName)
                                               .arg(foreign)
                                               .arg(own)));
    }
}

void TestResources::busyIndicatorLoops()
{
    QMovie movie(root + QStringLiteral("indicator.gif"));
    QVERIFY(movie.isValid());
    QVERIFY(movie.frameCount() > 1);
    QCOMPARE(movie.loopCount(), -1); // forever

    QImage previous;
    for (int frame = 0; frame < movie.frameCount(); ++frame) {
        QVERIFY(movie.jumpToFrame(frame));
        const QImage image = movie.currentImage();
        QCOMPARE(image.size(), QSize(32, 32)); // the label beside it is at most 38 wide
        QVERIFY(cornerIsSeeThrough(image));
        QVERIFY2(image != previous, qPrintable(QStringLiteral("frame %1 repeats").arg(frame)));
        previous = image;
    }
}

void TestResources::windowIconHoldsEverySize()
{
    const QString name = root + QStringLiteral("Cirro Manager.ico");
    QImageReader reader(name);
    QVERIFY2(reader.canRead(), qPrintable(reader.errorString()));
    QList<int> sides;
    for (int i = 0; i < reader.imageCount(); ++i) {
        QVERIFY(reader.jumpToImage(i));
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(image.width(), image.height());
        QVERIFY(cornerIsSeeThrough(image));
        sides << image.width();
    }
    std::sort(sides.begin(), sides.end());
    QCOMPARE(sides, (QList<int>{16, 32, 48, 256}));

    const QIcon icon(name);
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.pixmap(QSize(48, 48)).size(), QSize(48, 48));
}

void TestResources::resourcesAreExactlyTheseFiles()
{
    QStringList expected = {QStringLiteral("indicator.gif"), QStringLiteral("Cirro Manager.ico")};
    for (const Picture& picture : pictures())
        expected << QLatin1String(picture.name) << twinOf(QLatin1String(picture.name));

    QStringList present;
    QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext())
        present << it.next().mid(root.size());

    expected.sort();
    present.sort();
    QCOMPARE(present, expected);
}

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
