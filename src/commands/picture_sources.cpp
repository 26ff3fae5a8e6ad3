#include "commands/picture_sources.h"

#include "commands/command_arguments.h"
#include "commands/picture_catalogue.h"
#include "core/interpreter.h"
#include "data/paths.h"

namespace tamrix {
namespace {

std::string_view CatalogueText(Catalogue catalogue) {
  switch (catalogue) {
    case Catalogue::Pic: return kPicCatalogue;
    case Catalogue::Img: return kImgCatalogue;
    case Catalogue::Gif: return kGifCatalogue;
  }
  return {};
}

}  // namespace

NamedPicture FindPicture(Interpreter& in, const std::string& text, std::initializer_list<Catalogue> catalogues) {
  NamedPicture found;
  if (text.empty()) return found;
  for (const Catalogue catalogue : catalogues) {
    const int number = CatalogueNumber(CatalogueText(catalogue), text);
    if (number >= 0) {
      found.source.builtIn = number;
      found.source.catalogue = catalogue;
      return found;
    }
  }
  const std::string resolved = ResolvePath(text, in.Launch().programPath);
  found.missing = resolved.empty();
  found.source.path = found.missing ? text : resolved;
  return found;
}

std::size_t FirstValue(const CommandArguments& args) { return args.Raw(1) == "=" ? 2 : 1; }

}  // namespace tamrix
