#pragma once
// The settings file as text: sections of "name=value" lines, in the dialect Qt writes, read
// and written here so that every value is a plain text. A value that looks like one of Qt's
// serialized types ("@Variant(...)") stays the text it is: nothing in the file is ever
// deserialized.

#include <map>
#include <string>
#include <string_view>

namespace corvina {

// Full keys ("section/name"; a key of the [General] section has no section) to values.
using ValoresIni = std::map<std::string, std::string>;

ValoresIni leIni(std::string_view texto);

// Whether the text can be a settings file at all: UTF-8 without control characters other than
// tabs and line ends, each line blank, a comment, a [section] or a name=value. Anything else is
// a damaged file, to be set aside rather than read as a few stray values and overwritten.
bool pareceIni(std::string_view texto);
std::string escreveIni(const ValoresIni& valores);

} // namespace corvina
