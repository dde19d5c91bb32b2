#include "app/widgets/startupimages.h"

#include "app/languagecatalog.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QPixmap>

StartupImages* StartupImages::s_instance = nullptr;

namespace {

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

} // namespace

StartupImages::StartupImages()
{
    Q_ASSERT(!s_instance);
    s_instance = this;
    const bool highDpi = qGuiApp && qGuiApp->devicePixelRatio() > 1.0;
    m_pending = std::async(std::launch::async, [paths = preloadedPaths(), highDpi] {
        DecodedImages decoded;
        for (const QString& path : paths)
            decoded.insert(path, readWithHighDpiSibling(path, highDpi));
        return decoded;
    });
}

StartupImages::~StartupImages()
{
    if (m_pending.valid())
        m_pending.wait();
    s_instance = nullptr;
}

QStringList StartupImages::preloadedPaths()
{
    QStringList paths{QStringLiteral(":/images/Cirro Manager.ico"), QStringLiteral(":/images/logo_parvel.png")};
    for (const LanguageCatalog::Entry& entry : LanguageCatalog::scan(LanguageCatalog::translationDirectory()))
        paths.append(entry.iconPath);
    return paths;
}

const StartupImages::DecodedImages& StartupImages::images()
{
    if (!m_images)
        m_images = m_pending.get();
    return *m_images;
}

QIcon StartupImages::icon(const QString& path)
{
    if (!s_instance)
        return QIcon(path);
    const DecodedImages& decoded = s_instance->images();
    const auto found = decoded.constFind(path);
    if (found == decoded.cend())
        return QIcon(path);
    QIcon icon;
    for (const QImage& image : *found)
        icon.addPixmap(QPixmap::fromImage(image));
    return icon;
}
