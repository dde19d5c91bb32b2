#pragma once

#include <QIntValidator>

// The validator of one octet field of QIpEdit: 0 to 255.
class IPItemValidator final : public QIntValidator
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IPItemValidator)

public:
    explicit IPItemValidator(QObject* parent = nullptr);
    // An empty field stays empty.
    void fixup(QString& input) const override;
};
