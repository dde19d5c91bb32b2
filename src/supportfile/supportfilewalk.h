#pragma once

#include "common/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

class SupportFileWriter;
struct SupportFileSources;

// The walk over the cameras that fills a support file: per camera its own
// section numbered among its kind and its revision keys numbered by its place
// in the whole list, then the counts and the host's sections.
class SupportFileWalk final
{
public:
    // Everything after the header section.
    static void write(SupportFileWriter& writer, const SupportFileSources& sources);
    // Header, walk, the redaction when a secret is given, and the save.
    static Result writeFile(const QString& path, const SupportFileSources& sources,
                            const std::optional<QByteArray>& redactionSecret);
};
