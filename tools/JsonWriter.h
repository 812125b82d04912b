#pragma once

#include "text/Text.h"

namespace ondrilo {

/// Writes JSON in UTF-8, each element of an array on a line of its own. Whoever writes opens and closes in
/// order and gives a name before each value of an object.
class JsonWriter {
  public:
    void BeginObject() { Open('{'); }
    void EndObject() { Close('}'); }
    void BeginArray() { Open('['); }
    void EndArray() { Close(']'); }
    void Name(TextView name);
    void Value(TextView text);
    void Value(const char* text) { Value(TextView(text)); }
    void Value(bool truth);
    template <typename V>
    void Member(TextView name, const V& value) {
        Name(name);
        Value(value);
    }
    [[nodiscard]] const std::string& Written() const { return json; }

  private:
    void Separate();
    void Open(char bracket);
    void Close(char bracket);
    void AddString(TextView text);

    std::string json;
    std::string openBrackets;
    bool hasPrevious = false; ///< a value stands before the next in the same brackets
    bool hasName = false;     ///< the next value is that of a name
};

} // namespace ondrilo
