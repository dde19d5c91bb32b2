#include "supportfile/supportfilenames.h"

#include <boost/format.hpp>

namespace SupportFileNames {

namespace {

constexpr const wchar_t* table[] = {
#define CIRRO_SUPPORT_FILE_NAME_TEXT(identifier, text) text,
    CIRRO_SUPPORT_FILE_NAMES(CIRRO_SUPPORT_FILE_NAME_TEXT)
#undef CIRRO_SUPPORT_FILE_NAME_TEXT
};

static_assert(int(Name::Usb) + VpeCount == int(Name::DeviceCameraId),
              "the VPE count lies in the section five entries after \"USB\"");

} // namespace

const wchar_t* text(Name name)
{
    return table[int(name)];
}

std::wstring numbered(Name format, int number)
{
    return (boost::wformat(text(format)) % number).str();
}

std::wstring countSection(CountKind kind)
{
    return table[int(Name::Usb) + int(kind)];
}

} // namespace SupportFileNames
