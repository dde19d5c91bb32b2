#pragma once

#include <QHash>
#include <QIcon>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <future>
#include <optional>

// The images the main window shows first, decoded on a worker thread while
// the toolkit sets up its fonts. The first image read of a process also scans
// the image plugins, and the window icon needs one loaded; together that costs
// more than the decoding, and all of it can run beside the GUI thread.
//
// One instance at a time, created and used in the GUI thread; it must outlive
// the reads of icon() that should profit from it. Its destructor waits for the
// worker, so the process never ends while the worker reads.
class StartupImages final
{
public:
    StartupImages();
    ~StartupImages();
    StartupImages(const StartupImages&) = delete;
    StartupImages& operator=(const StartupImages&) = delete;

    // Resource paths of the images decoded ahead.
    static QStringList preloadedPaths();

    // The icon of a resource path: from the decoded images of the living
    // instance when it preloaded the path (waiting for the worker if need
    // be), else read now.
    static QIcon icon(const QString& path);

private:
    using DecodedImages = QHash<QString, QList<QImage>>;

    const DecodedImages& images();

    static StartupImages* s_instance;
    std::future<DecodedImages> m_pending;
    std::optional<DecodedImages> m_images;
};
