// What the data commands keep for the whole run of one program.
#pragma once

#include <string>

#include "data/alias_table.h"
#include "data/database_table.h"
#include "data/file_numbers.h"
#include "data/folder_search.h"
#include "data/text_store.h"

namespace tamrix {

struct DataState {
  FileNumbers files;
  AliasTable aliases;
  FileListing listing;
  TextStore textStore;
  DatabaseTable databases;
  // "InsereCamposBox" while OrderDB reads the records through ReadRecord:
  // positions then name places in the file, not in the order.
  std::string orderRebuildFlag;
};

}  // namespace tamrix
