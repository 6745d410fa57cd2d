#include "tools/Encoder.h"

#include "tools/Failure.h"
#include "tools/RecordWriter.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

namespace Talvo::Tools
{

namespace
{

using nlohmann::json;

/// Takes the JSON piece by piece, so that no more of it is in memory than the value that is read.
class Reader : public nlohmann::json_sax<json>
{
public:
    EncodedRecord Take()
    {
        if (!writer_) throw Failure("its JSON has no 'record'");
        if (!hasValues_) throw Failure("its JSON has no 'values'");
        return {type_, writer_->Finish()};
    }

    bool null() override { return Refuse("null is not a value"); }
    bool boolean(bool const value) override { return Scalar(value); }
    bool number_integer(std::int64_t const value) override { return Scalar(value); }
    bool number_unsigned(std::uint64_t const value) override
    {
        if (value > std::numeric_limits<std::int64_t>::max()) return Refuse("it is larger than any number of a record");
        return Scalar(static_cast<std::int64_t>(value));
    }
    bool number_float(double, string_t const& text) override { return Refuse(text + " is not a whole number"); }
    bool string(string_t& value) override { return Scalar(BytesOf(value)); }
    bool binary(binary_t&) override { return false; } // which JSON does not have

    bool start_object(std::size_t) override
    {
        if (place_ == Place::Outside)
            place_ = Place::Record;
        else if (place_ == Place::Values)
        {
            place_ = Place::Element;
            path_.reset();
            value_.reset();
            key_.reset();
        }
        else
            return StartEmpty(EmptyJson::Object);
        return true;
    }
    bool start_array(std::size_t) override
    {
        if (place_ != Place::Record || member_ != "values") return StartEmpty(EmptyJson::Array);
        if (!writer_) return Refuse("'record' has to come before");
        if (std::exchange(hasValues_, true)) return Refuse("it is there twice");
        place_ = Place::Values;
        return true;
    }
    bool key(string_t& name) override
    {
        if (place_ == Place::Empty) return Refuse("only an empty object or array is a value");
        member_ = BytesOf(name);
        bool const isKnown = place_ == Place::Record ? member_ == "record" || member_ == "values"
                                                     : member_ == "path" || member_ == "value" || member_ == "key";
        return isKnown || Refuse("there is no such member");
    }
    bool end_object() override { return End(); }
    bool end_array() override { return End(); }

    bool parse_error(std::size_t const position, std::string const&, json::exception const&) override
    {
        throw Failure("holds no JSON: it is not valid at byte " + std::to_string(position));
    }

private:
    enum class Place
    {
        Outside,
        Record,
        Values,
        Element,
        Empty
    };

    /// Where it is, such as `values[3].value`.
    std::string Where() const
    {
        switch (place_)
        {
        case Place::Outside:
            return "its JSON";
        case Place::Record:
            return member_;
        case Place::Values:
            return "values[" + std::to_string(index_) + ']';
        default:
            return "values[" + std::to_string(index_) + "]." + member_;
        }
    }

    [[noreturn]] bool Refuse(std::string const& reason) const { throw Failure(Where() + ": " + reason); }

    /// The bytes whose numbers are the characters of UTF-8.
    std::string BytesOf(std::string const& text) const
    {
        std::string bytes;
        for (std::size_t i = 0; i < text.size(); ++i)
        {
            auto const byte = static_cast<unsigned char>(text[i]);
            if (byte > 0xC3U) Refuse("a character is above U+00FF and is not a byte");
            bytes += byte < 0x80U
                         ? text[i]
                         : static_cast<char>((byte & 3U) << 6U | (static_cast<unsigned char>(text[++i]) & 0x3FU));
        }
        return bytes;
    }

    bool StartEmpty(EmptyJson const kind)
    {
        if (place_ != Place::Element || member_ != "value") return Refuse("an array or object is not allowed here");
        value_ = kind;
        place_ = Place::Empty;
        return true;
    }

    bool Scalar(JsonValue value)
    {
        if (place_ == Place::Empty) return Refuse("only an empty object or array is a value");
        if (place_ == Place::Outside || place_ == Place::Values) return Refuse("an object is expected here");
        if (place_ == Place::Element && member_ == "value")
        {
            value_ = std::move(value);
            return true;
        }
        auto* const text = std::get_if<std::string>(&value);
        if (text == nullptr || member_ == "values") return Refuse("it is of another type");
        if (member_ == "record")
            SetRecord(*text);
        else
            (member_ == "path" ? path_ : key_) = std::move(*text);
        return true;
    }

    void SetRecord(std::string const& name)
    {
        if (writer_) Refuse("it is there twice");
        try
        {
            type_ = &FindRecordType(name);
        }
        catch (Failure const& failure)
        {
            Refuse(failure.what());
        }
        writer_.emplace(type_->shape());
    }

    bool End()
    {
        if (place_ == Place::Element) AddElement();
        place_ = place_ == Place::Empty     ? Place::Element
                 : place_ == Place::Element ? Place::Values
                 : place_ == Place::Values  ? Place::Record
                                            : Place::Outside;
        return true;
    }

    void AddElement()
    {
        auto const place = "values[" + std::to_string(index_) + ']';
        if (!path_) throw Failure(place + ": it has no 'path'");
        if (value_.has_value() == key_.has_value()) throw Failure(place + ": it takes a 'value' or a 'key'");
        try
        {
            if (value_)
                writer_->AddValue(*path_, *value_);
            else
                writer_->AddKey(*path_, *key_);
        }
        catch (Failure const& failure)
        {
            throw Failure(place + '.' + failure.what());
        }
        ++index_;
    }

    Place place_ = Place::Outside;
    std::string member_;
    std::size_t index_ = 0; ///< Of the element that is read.
    std::optional<std::string> path_;
    std::optional<std::string> key_;
    std::optional<JsonValue> value_;
    RecordType const* type_ = nullptr;
    std::optional<RecordWriter> writer_;
    bool hasValues_ = false;
};

} // namespace

EncodedRecord ReadJsonRecord(std::istream& input)
{
    Reader reader;
    json::sax_parse(input, &reader, json::input_format_t::json, false);
    return reader.Take();
}

} // namespace Talvo::Tools
