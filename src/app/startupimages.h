#pragma once

#include <QIcon>
#include <QString>
#include <QStringList>

// The images the main window shows first, decoded on a worker thread while
// the toolkit sets up its fonts. The first image read of a process also scans
// the image plugins, and the window icon needs one loaded; together that costs
// more than the decoding, and all of it can run beside the GUI thread.
// All functions are called from the GUI thread.
namespace StartupImages {

// Resource paths of the images to decode ahead.
QStringList preloadedPaths();

// Starts decoding preloadedPaths() on a worker thread; at most once.
void preload();

// The icon of a resource path: from the decoded images when the path was
// preloaded (waiting for the worker if need be), else read now.
QIcon icon(const QString& path);

} // namespace StartupImages
