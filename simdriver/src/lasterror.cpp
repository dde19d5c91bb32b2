#include "lasterror.h"

namespace sim::LastError {

namespace {
thread_local Result last;
}

void record(const Result& result)
{
    if (!result.ok())
        last = result;
}

std::int32_t code()
{
    return last.code;
}

const char* text()
{
    return last.ok() ? nullptr : last.text.c_str();
}

} // namespace sim::LastError
