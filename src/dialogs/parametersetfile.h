#pragma once

#include "common/result.h"
#include "dialogs/parameterset.h"

#include <QCoreApplication>

// A parameter set in an INI file, for taking it to another camera of the
// same model or keeping it aside:
//
//   [ParameterSet]
//   Model=CR-U3-50M
//   Count=11
//   [Values]
//   ExposureTime=10000
//   ...
//   [Check]
//   Checksum=<MD5 of the lines above>
//
// The checksum comes last, so a file cut short anywhere lacks it or has it
// damaged.
class ParameterSetFile final
{
    Q_DECLARE_TR_FUNCTIONS(ParameterSetFile)

public:
    static QByteArray text(const ParameterSet& set);
    static Result save(const QString& path, const ParameterSet& set);
    // Takes a set for the camera whose set `shape` is (its model and value
    // names); anything else is refused and *set stays as it was.
    static Result parse(const QByteArray& text, const ParameterSet& shape, ParameterSet* set);
    static Result load(const QString& path, const ParameterSet& shape, ParameterSet* set);
};
