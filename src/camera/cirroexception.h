#pragma once

#include <cstdint>
#include <exception>
#include <string>

// A camera-API failure that aborts the operation in progress.
class CirroException final : public std::exception
{
public:
    explicit CirroException(std::int32_t code);

    std::int32_t code() const noexcept { return m_code; }
    const char* what() const noexcept override { return m_message.c_str(); }

private:
    std::int32_t m_code;
    std::string m_message;
};
