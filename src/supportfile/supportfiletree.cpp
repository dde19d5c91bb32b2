#include "supportfile/supportfiletree.h"

#include <boost/property_tree/ini_parser.hpp>

#include <sstream>

namespace {

// A line break inside a value would end its line in the INI text.
std::wstring oneLine(std::wstring value)
{
    for (wchar_t& c : value) {
        if (c == L'\n' || c == L'\r')
            c = L' ';
    }
    return value;
}

} // namespace

SupportFileTree::Tree::path_type SupportFileTree::path(const std::wstring& section, const std::wstring& key)
{
    return Tree::path_type(section + L'/' + key, L'/');
}

void SupportFileTree::put(const std::wstring& section, const std::wstring& key, const std::wstring& value)
{
    m_tree.put(path(section, key), oneLine(value));
}

const SupportFileTree::Tree* SupportFileTree::section(const std::wstring& name) const
{
    const auto found = m_tree.find(name);
    return found == m_tree.not_found() ? nullptr : &found->second;
}

std::optional<std::wstring> SupportFileTree::get(const std::wstring& sectionName, const std::wstring& key) const
{
    const Tree* keys = section(sectionName);
    if (!keys)
        return std::nullopt;
    const auto found = keys->find(key);
    if (found == keys->not_found())
        return std::nullopt;
    return found->second.data();
}

std::wstring SupportFileTree::get(const std::wstring& sectionName, const std::wstring& key,
                                  const std::wstring& fallback) const
{
    return get(sectionName, key).value_or(fallback);
}

long long SupportFileTree::number(const std::wstring& sectionName, const std::wstring& key, long long fallback) const
{
    const std::optional<std::wstring> text = get(sectionName, key);
    if (!text || text->empty())
        return fallback;
    std::size_t used = 0;
    try {
        const long long value = std::stoll(*text, &used);
        return used == text->size() ? value : fallback;
    } catch (const std::exception&) {
        return fallback;
    }
}

bool SupportFileTree::hasSection(const std::wstring& name) const
{
    return section(name) != nullptr;
}

std::vector<std::wstring> SupportFileTree::sectionNames() const
{
    std::vector<std::wstring> names;
    for (const auto& entry : m_tree)
        names.push_back(entry.first);
    return names;
}

std::wstring SupportFileTree::toIni() const
{
    std::wostringstream text;
    for (const auto& entry : m_tree) {
        if (entry.second.empty()) {
            text << L'[' << entry.first << L"]\n\n"; // the INI writer would take it for a key
            continue;
        }
        Tree single;
        single.push_back(entry);
        boost::property_tree::ini_parser::write_ini(text, single);
        text << L'\n';
    }
    return text.str();
}

SupportFileTree SupportFileTree::fromIni(const std::wstring& text)
{
    std::wistringstream stream(text);
    SupportFileTree result;
    boost::property_tree::ini_parser::read_ini(stream, result.m_tree);
    return result;
}
