#pragma once

#include <QByteArray>

class SupportFileTree;

// A support file's content in forms that other tools read: the INI text as
// the file holds it scrambled, and JSON with an object per section.
namespace SupportFileExport {

QByteArray toIni(const SupportFileTree& tree); // UTF-8
QByteArray toJson(const SupportFileTree& tree);

} // namespace SupportFileExport
