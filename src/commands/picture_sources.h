// Pictures as a program names them: a name in one of the catalogues of
// built-in pictures, or a file found by ResolvePath.
#pragma once

#include <initializer_list>
#include <string>

#include "core/object_controls.h"

namespace tamrix {

class Interpreter;
class CommandArguments;

struct NamedPicture {
  PictureSource source;
  bool missing = false;  // a file that ResolvePath didn't find
};

// The catalogues are searched in the order given; an empty text is no
// picture.
NamedPicture FindPicture(Interpreter& in, const std::string& text, std::initializer_list<Catalogue> catalogues);

// Where the values of a property start: behind the "=" of
// "name.WORD = a, b", or right behind the name in "name.WORD, a, b", the
// form of a function call.
std::size_t FirstValue(const CommandArguments& args);

}  // namespace tamrix
