#include "cli/ProjectJson.h"

#include "core/platform/NumberText.h"

#include <cmath>
#include <string_view>

#include <nlohmann/json.hpp>

namespace
{
using CJson = nlohmann::ordered_json;

bool IsUtf8(const std::string& text)
{
    try
    {
        CJson(text).dump();
        return true;
    }
    catch (const CJson::type_error&)
    {
        return false;
    }
}

/// Each byte over 127 as the character of that number.
std::string Utf8OfBytes(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes)
    {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80)
        {
            text += c;
            continue;
        }
        text += static_cast<char>(0xC0 | (byte >> 6));
        text += static_cast<char>(0x80 | (byte & 0x3F));
    }
    return text;
}

CJson Json(int value)
{
    return value;
}

CJson Json(const std::string& text)
{
    return IsUtf8(text) ? text : Utf8OfBytes(text);
}

CJson Json(float value)
{
    return std::isfinite(value) ? CJson(static_cast<double>(value)) : CJson(nullptr);
}

template <class Values>
CJson Json(const Values& values)
{
    CJson array = CJson::array();
    for (const auto& value : values)
    {
        array.push_back(Json(value));
    }
    return array;
}

CJson Json(const CSummaryValues& values)
{
    CJson array = Json(values.Numbers);
    array.push_back(values.Choice);
    for (const std::string& text : values.Texts)
    {
        array.push_back(Json(text));
    }
    array.push_back(values.Position);
    return array;
}

CJson Json(const CParamArray& field)
{
    return {{"unit", field.unit},     {"scope", field.scope},     {"min", Json(field.min)},
            {"max", Json(field.max)}, {"changed", field.changed}, {"data", Json(field.data)}};
}

CJson Whole(CProjectData& project)
{
    CJson whole = {{"keywords", CJson::object()}, {"fields", CJson::object()}, {"complete", CJson::object()}};
    for (const CParamArray* field : project.Fields())
    {
        whole["keywords"][field->name] = Json(*field);
    }
    project.EachPlainField([&](const char* name, const auto& value) { whole["fields"][name] = Json(value); });
    project.EachCompletenessFlag([&](const char* name, int flag) { whole["complete"][name] = flag; });
    return whole;
}

/// A number, text or null. The library's own texts of numbers are those of doubles, which are longer.
std::string ScalarText(const CJson& value)
{
    if (!value.is_number_float())
    {
        return value.dump();
    }
    const std::string text = ShortestText(static_cast<float>(value.get<double>()));
    return text == "-0" ? "-0.0" : text; // as an integer it would lose its sign
}

/// The library would put each number of an array on a line of its own.
void Append(std::string& text, const CJson& value, std::size_t indentation)
{
    if (!value.is_structured() || value.empty())
    {
        text += ScalarText(value);
        return;
    }
    const bool object = value.is_object();
    const auto breakLine = [&](std::size_t blanks)
    {
        if (object)
        {
            text += '\n';
            text.append(blanks, ' ');
        }
    };
    text += object ? '{' : '[';
    for (auto item = value.begin(); item != value.end(); ++item)
    {
        text += item == value.begin() ? "" : object ? "," : ", ";
        breakLine(indentation + 2);
        if (object)
        {
            text += CJson(item.key()).dump() + ": ";
        }
        Append(text, *item, indentation + 2);
    }
    breakLine(indentation);
    text += object ? '}' : ']';
}
} // namespace

std::string ProjectJson(CProjectData& project)
{
    std::string text;
    Append(text, Whole(project), 0);
    text += '\n';
    return text;
}
