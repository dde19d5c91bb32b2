#pragma once

#include "common/result.h"

#include <QCoreApplication>

// Failures that several network operations share.
class NetworkFailure final
{
    Q_DECLARE_TR_FUNCTIONS(NetworkFailure)

public:
    static Result unknownInterface(const QString& interfaceName);
};
