#include "app/startupimages.h"

#include "app/languagecatalog.h"

#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QImageReader>
#include <QList>
#include <QPixmap>

#include <future>
#include <optional>

namespace StartupImages {

namespace {

using DecodedImages = QHash<QString, QList<QImage>>;

struct Preload
{
    std::future<DecodedImages> pending;
    std::optional<DecodedImages> images;
};

Preload& state()
{
    static Preload preload;
    return preload;
}

// Every image of a file: an .ico holds several sizes.
QList<QImage> readAll(const QString& path)
{
    QList<QImage> images;
    QImageReader reader(path);
    do {
        const QImage image = reader.read();
        if (image.isNull())
            break;
        images.append(image);
    } while (reader.jumpToNextImage());
    return images;
}

// The same files that QIcon(path) reads: the path, and at a device pixel ratio
// above 1 its "@2x" sibling.
QList<QImage> readWithHighDpiSibling(const QString& path, bool highDpi)
{
    QList<QImage> images = readAll(path);
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    if (highDpi && dot > 0)
        images += readAll(path.left(dot) + QStringLiteral("@2x") + path.mid(dot));
    return images;
}

DecodedImages decode(const QStringList& paths, bool highDpi)
{
    DecodedImages decoded;
    for (const QString& path : paths)
        decoded.insert(path, readWithHighDpiSibling(path, highDpi));
    return decoded;
}

const DecodedImages& decodedImages()
{
    Preload& preload = state();
    if (!preload.images)
        preload.images = preload.pending.valid() ? preload.pending.get() : DecodedImages();
    return *preload.images;
}

} // namespace

QStringList preloadedPaths()
{
    QStringList paths{QStringLiteral(":/images/Cirro Manager.ico"), QStringLiteral(":/images/logo_parvel.png")};
    for (const LanguageCatalog::Entry& entry : LanguageCatalog::scan(LanguageCatalog::translationDirectory()))
        paths.append(entry.iconPath);
    return paths;
}

void preload()
{
    Preload& preload = state();
    if (preload.pending.valid() || preload.images)
        return;
    const bool highDpi = qGuiApp && qGuiApp->devicePixelRatio() > 1.0;
    preload.pending = std::async(std::launch::async, decode, preloadedPaths(), highDpi);
}

QIcon icon(const QString& path)
{
    const DecodedImages& images = decodedImages();
    const auto found = images.constFind(path);
    if (found == images.cend())
        return QIcon(path);
    QIcon icon;
    for (const QImage& image : *found)
        icon.addPixmap(QPixmap::fromImage(image));
    return icon;
}

} // namespace StartupImages
