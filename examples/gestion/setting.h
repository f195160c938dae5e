// What the program was asked to do, and where its files are.
#pragma once

#include <string>
#include <vector>

namespace gestion {

// What is typed into the search box of a column.
struct Search {
  std::wstring column, text;
};

// "Column=text"; throws for a text without "=".
Search read_search(const std::wstring& typed);

struct Setting {
  std::wstring library;  // the DLL
  std::wstring folder;   // for the program's own files
  std::wstring scripts;  // folder of the script files
  std::wstring driver = L"SQLite3";
  bool answer_boxes = false;     // start the program that answers the library's boxes
  std::vector<Search> searches;  // for the list of orders
  bool ask = false;              // and as many more as somebody types
  bool unregister = false;       // leave the machine as it was
  std::wstring database;         // the database file, for this program
  std::wstring driver_database;  // and for the driver, which may live on another system
};

inline constexpr const wchar_t* kIdentification = L"Gestión 1.0";
inline constexpr const wchar_t* kParameterFile = L"gestion";
inline constexpr long kJet = 1;  // an embedded database goes under the number of the embedded engine
inline constexpr long kSqlServer = 2;

// Reads the arguments of the command line; throws with the usage when they make no sense.
Setting read_setting(int count, wchar_t** arguments);

}  // namespace gestion
