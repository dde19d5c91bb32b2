#include "network/widgets/ipitemvalidator.h"

IPItemValidator::IPItemValidator(QObject* parent)
    : QIntValidator(0, 255, parent)
{
}

void IPItemValidator::fixup(QString& input) const
{
    if (!input.isEmpty())
        QIntValidator::fixup(input);
}
