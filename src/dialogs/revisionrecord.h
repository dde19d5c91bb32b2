#pragma once

#include "common/result.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

// The revision record of an open camera: eighteen texts, each under the key
// that the support file gives it and a label for people.
class RevisionRecord final
{
    Q_DECLARE_TR_FUNCTIONS(RevisionRecord)

public:
    struct Field
    {
        const char* key; // "CamInfo_Type"
        QString label;
        QString value;
    };

    static Result read(quint32 handle, RevisionRecord* record);

    const QList<Field>& fields() const { return m_fields; }

private:
    QList<Field> m_fields;
};
