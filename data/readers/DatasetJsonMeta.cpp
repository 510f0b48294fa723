#include "data/readers/DatasetJsonMeta.h"

#include "data/readers/JsonText.h"
#include "data/values/Texts.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <set>
#include <simdjson.h>

namespace {

using simdjson::ondemand::json_type;
using Value = simdjson::ondemand::value;
using Object = simdjson::ondemand::object;

/// Ends the walk through a text that is no JSON.
struct NoJson
{ };

template <typename T>
T checked(simdjson::simdjson_result<T> result)
{
    if (result.error() != simdjson::SUCCESS) {
        throw NoJson();
    }
    return result.value_unsafe();
}

json_type typeOf(Value& value)
{
    json_type type{};
    if (value.type().get(type) != simdjson::SUCCESS) {
        throw NoJson();
    }
    return type;
}

/// A plain value as text; nothing for null, lists and objects.
std::optional<std::string> textOf(Value& value)
{
    const json_type type = typeOf(value);
    if (type == json_type::array || type == json_type::object) {
        return std::nullopt;
    }
    if (type == json_type::string) {
        return std::string(checked(value.get_string()));
    }
    const std::string token(jsontext::withoutBlanksBehind(value.raw_json_token()));
    const bool isWord = token == "null" || token == "true" || token == "false";
    double number = 0;
    if (!isWord && value.get_double().get(number) == simdjson::INCORRECT_TYPE) {
        throw NoJson();
    }
    return type == json_type::null ? std::nullopt : std::optional(token);
}

std::optional<std::int64_t> countIn(const std::optional<std::string>& text)
{
    std::int64_t count = 0;
    if (!text) {
        return std::nullopt;
    }
    const char* const end = text->data() + text->size();
    const auto [rest, problem] = std::from_chars(text->data(), end, count);
    return problem == std::errc() && rest == end ? std::optional(count) : std::nullopt;
}

class MetaReader
{
public:
    explicit MetaReader(DatasetJsonMeta& meta)
        : m_meta(meta)
    { }

    void readObject(Object object, const std::string& path)
    {
        std::set<std::string> seen;
        for (auto field : object) {
            const std::string key(checked(field.unescaped_key()));
            if (!seen.insert(key).second) {
                m_meta.notes.push_back(fmt::format(
                    "Its attribute {} stands there more than once; the last one holds", key));
            }
            readMember(path, key, checked(field.value()));
        }
    }

private:
    void readMember(const std::string& path, const std::string& key, Value value)
    {
        const json_type type = typeOf(value);
        if (type == json_type::object) {
            readNested(path, key, value);
        } else if (key == "columns" || (key == "items" && !path.empty())) {
            readColumns(type, value);
        } else if (type != json_type::array) {
            accept(key, textOf(value));
        }
    }

    void readNested(const std::string& path, const std::string& key, Value& value)
    {
        const bool isData = path.empty() && (key == "clinicalData" || key == "referenceData");
        const bool isGroup = path == "data" && key == "itemGroupData";
        if (isData) {
            if (key == "referenceData") {
                accept("isReferenceData", "true");
            }
            readObject(checked(value.get_object()), "data");
        } else if (isGroup) {
            readObject(checked(value.get_object()), "groups");
        } else if (path == "groups") {
            readGroup(key, value);
        } else if (path.empty() && key == "sourceSystem") {
            readSystem(value);
        }
    }

    void readGroup(const std::string& key, Value& value)
    {
        if (m_hasGroup) {
            m_meta.notes.push_back(
                fmt::format("It holds a further dataset, {}, which is left out", key));
            return;
        }
        m_hasGroup = true;
        accept("itemGroupOID", key);
        readObject(checked(value.get_object()), "group");
    }

    void readSystem(Value& value)
    {
        for (auto field : checked(value.get_object())) {
            const std::string key(checked(field.unescaped_key()));
            Value part = checked(field.value());
            const std::string text = textOf(part).value_or("");
            if (key == "name") {
                m_meta.systemName = text;
            } else if (key == "version") {
                m_meta.systemVersion = text;
            }
        }
    }

    void accept(const std::string& key, const std::optional<std::string>& text)
    {
        const std::string given = text.value_or("");
        if (key == "name") {
            m_meta.name = given;
        } else if (key == "label") {
            m_meta.label = given;
        } else if (key == "records") {
            m_meta.records = countIn(text);
        } else if (key == "datasetJSONCreationDateTime" || key == "creationDateTime") {
            m_meta.created = given;
        } else if (key == "dbLastModifiedDateTime" || key == "asOfDateTime") {
            m_meta.modified = given;
        } else if (key == "sourceSystem") {
            m_meta.systemName = given;
        } else if (key == "sourceSystemVersion") {
            m_meta.systemVersion = given;
        } else if (text && !text->empty() && key != "rows" && key != "itemData") {
            const auto same = [&](const FileAttribute& one) { return one.first == key; };
            std::erase_if(m_meta.attributes, same);
            m_meta.attributes.emplace_back(key, *text);
        }
    }

    void readColumns(json_type type, Value& value)
    {
        m_meta.columns.clear();
        m_meta.hasColumns = type == json_type::array;
        if (!m_meta.hasColumns) {
            return;
        }
        for (auto element : checked(value.get_array())) {
            Value column = checked(element);
            m_meta.columns.emplace_back();
            if (typeOf(column) == json_type::object) {
                readColumn(column, m_meta.columns.back());
            }
        }
    }

    static void readColumn(Value& value, DatasetJsonColumn& column)
    {
        for (auto field : checked(value.get_object())) {
            const std::string key(checked(field.unescaped_key()));
            Value part = checked(field.value());
            const std::optional<std::string> text = textOf(part);
            if (!text) {
                continue;
            }
            if (key == "length") {
                column.length = countIn(text);
            } else if (key == "keySequence") {
                column.keySequence = countIn(text).value_or(0);
            } else if (std::string* place = placeFor(key, column)) {
                *place = *text;
            }
        }
    }

    static std::string* placeFor(const std::string& key, DatasetJsonColumn& column)
    {
        if (key == "itemOID" || key == "OID") {
            return &column.oid;
        }
        if (key == "dataType" || key == "type") {
            return &column.dataType;
        }
        return key == "name"          ? &column.name
            : key == "label"          ? &column.label
            : key == "targetDataType" ? &column.targetDataType
            : key == "displayFormat"  ? &column.displayFormat
                                      : nullptr;
    }

    DatasetJsonMeta& m_meta;
    bool m_hasGroup = false;
};

/// Makes the text one that the parser takes: it refuses a whole text for one wrong byte.
void repair(std::string& text, DatasetJsonMeta& meta)
{
    std::size_t count = 0;
    if (!texts::isUtf8(text)) {
        text = jsontext::repairedBytes(text, count);
    }
    count += jsontext::repairEscapes(text.data(), text.size());
    if (count > 0) {
        meta.notes.push_back(fmt::format(
            "{} characters of its attributes are not valid and are shown as \xEF\xBF\xBD", count));
    }
}

}  // namespace

Result<DatasetJsonMeta> readDatasetJsonMeta(std::string text)
{
    DatasetJsonMeta meta;
    repair(text, meta);
    const simdjson::padded_string padded(text);
    simdjson::ondemand::parser parser;
    try {
        simdjson::ondemand::document document;
        Object object;
        if (parser.iterate(padded).get(document) != simdjson::SUCCESS
            || document.get_object().get(object) != simdjson::SUCCESS) {
            throw NoJson();
        }
        MetaReader(meta).readObject(object, {});
    } catch (const NoJson&) {
        return Failure{"Its attributes are no valid JSON"};
    }
    return meta;
}
