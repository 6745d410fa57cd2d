#include "records/RecordView.h"

namespace Talvo::Records
{

namespace
{

void AddLines(std::vector<std::string>& lines, View const& view, std::string const& indentation)
{
    for (auto const& part : view.parts)
    {
        lines.push_back(indentation + part.label + (part.isSet ? " = " : " ? ") + part.view.text);
        AddLines(lines, part.view, indentation + "  ");
    }
}

} // namespace

std::string Escaped(std::string_view const bytes)
{
    static constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    for (char const byte : bytes)
    {
        auto const value = static_cast<unsigned char>(byte);
        if (byte == '"' || byte == '\\')
            text += {'\\', byte};
        else if (value >= 0x20U && value < 0x7FU)
            text += byte;
        else
            text += {'\\', 'x', Digits[value >> 4U], Digits[value & 0xFU]};
    }
    return text;
}

std::vector<std::string> Lines(View const& view)
{
    std::vector<std::string> lines;
    AddLines(lines, view, "  ");
    return lines;
}

std::string Text(View const& view)
{
    std::string text;
    for (auto const& line : Lines(view)) text += line + '\n';
    return text;
}

} // namespace Talvo::Records
