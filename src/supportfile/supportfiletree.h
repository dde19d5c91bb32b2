#pragma once

#include <boost/property_tree/ptree.hpp>

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

// The content of a support file: sections under the root, text keys under
// the sections, in the order they were added. Paths use "/" as separator so
// that keys may hold dots (driver file names).
class SupportFileTree final
{
public:
    using Tree = boost::property_tree::wptree;

    void put(const std::wstring& section, const std::wstring& key, const std::wstring& value);
    // Integers in decimal, 8-bit ones as numbers rather than characters.
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    void put(const std::wstring& section, const std::wstring& key, Number value)
    {
        if constexpr (std::is_signed_v<Number>)
            m_tree.put(path(section, key), static_cast<long long>(value));
        else
            m_tree.put(path(section, key), static_cast<unsigned long long>(value));
    }

    std::optional<std::wstring> get(const std::wstring& section, const std::wstring& key) const;
    std::wstring get(const std::wstring& section, const std::wstring& key, const std::wstring& fallback) const;
    // A decimal number; fallback when the key is missing or holds no number.
    long long number(const std::wstring& section, const std::wstring& key, long long fallback) const;
    bool hasSection(const std::wstring& section) const;
    const Tree* section(const std::wstring& name) const;
    std::vector<std::wstring> sectionNames() const;

    const Tree& tree() const { return m_tree; }
    bool isEmpty() const { return m_tree.empty(); }

    // Each section as "[name]", its keys as "key=value", an empty line after
    // each section; lines end in a line feed.
    std::wstring toIni() const;
    // Throws boost::property_tree::ini_parser_error, with the line, on text
    // that is not INI.
    static SupportFileTree fromIni(const std::wstring& text);

private:
    static Tree::path_type path(const std::wstring& section, const std::wstring& key);

    Tree m_tree;
};
