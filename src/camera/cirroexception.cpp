#include "camera/cirroexception.h"

CirroException::CirroException(std::int32_t code)
    : m_code(code)
    , m_message("Custom exception: ret=" + std::to_string(code))
{
}
