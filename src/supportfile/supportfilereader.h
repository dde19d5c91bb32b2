#pragma once

#include "supportfile/supportfiletree.h"

#include <QCoreApplication>
#include <QString>

// Reads a support file back into its tree. A damaged file gives what could be
// read before the damage and a message that names the file and the line.
class SupportFileReader final
{
    Q_DECLARE_TR_FUNCTIONS(SupportFileReader)

public:
    struct Result
    {
        SupportFileTree tree;
        QString error;        // empty when the whole file was read
        bool partial = false; // the tree holds what stood before the error
    };

    // Larger files are refused unread: a thousand cameras take about 50 MB.
    static constexpr qint64 maximumSize = 512LL * 1024 * 1024;

    static Result read(const QString& path);
    static Result parse(const QString& fileName, const QByteArray& content);
    // The decoded INI text of a file's content, up to its first bad line.
    static std::wstring decodeText(const QByteArray& content, int* badLine = nullptr);
};
