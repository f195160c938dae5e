// An ADO that a test plays: it executes nothing, writes down each call, and answers it as the test wants. Its classes
// are ADODB.Connection, ADODB.Command and ADODB.Parameter for as long as it lives; the test ADO has these names again
// afterwards.
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "automation/host.h"

namespace qvr::tests {

enum class Played { Connection, Command, Parameter, Parameters, Errors };  // the first three can be created

class PlayedAdo {
 public:
  explicit PlayedAdo(std::wstring threading_model = L"Apartment");
  ~PlayedAdo();
  PlayedAdo(const PlayedAdo&) = delete;
  PlayedAdo& operator=(const PlayedAdo&) = delete;

  // Puts its classes in the place of those that the names led to.
  void register_it() const;
  void unregister_it() const;
  void unregister(Played kind) const;
  // Below HKEY_LOCAL_MACHINE.
  std::wstring name_key(Played kind) const;
  std::wstring class_key(Played kind) const;

  // Hears of each call before it is answered; what is not S_OK is the answer. Calls are
  //   "class Command"                          for the class object
  //   "new Command2"                           for the second object of the class
  //   "Command2.CommandText = BSTR select 1"   and others on an object
  // DISP_E_EXCEPTION comes with an error of the number E_FAIL.
  std::function<HRESULT(const std::string& call)> reaction;

  // Of the objects made from now on: whether no two of a class have a dispatch id in common, and what their type
  // information says. Honest is one interface for a class, or for each object where it has ids of its own; otherwise
  // all objects of a class show one interface, with the ids of its second object, or of none.
  enum class TypeInformation { None, Honest, OfTheSecond, OfNone };
  bool own_ids = false;
  TypeInformation type_information = TypeInformation::None;

  // In order, without those for class objects. Names asked for dispatch ids are no calls either.
  std::vector<std::string> calls() const;
  // As if it were new; objects are counted from 1 again.
  void forget_calls();
  bool keeps_calls = true;

  // How often a class object was asked for, and how many names an object of this kind was asked for its ids.
  std::size_t classes_asked(Played kind) const;
  std::size_t names_asked(Played kind) const;
  // Objects that were not released.
  long living() const;

 private:
  friend class PlayedObject;
  friend class PlayedClass;
  friend class PlayedClasses;

  CLSID class_id(Played kind) const;
  HRESULT hear(const std::string& call, bool kept = true);
  int number_of_next(Played kind);
  void count_names(Played kind);

  const std::wstring threading_model_;
  const unsigned long number_;
  mutable std::mutex lock_;  // its objects may live in several apartments
  std::vector<std::string> calls_;
  std::map<Played, int> made_;
  std::map<Played, std::size_t> classes_asked_, names_asked_;
  volatile LONG living_ = 0;
};

}  // namespace qvr::tests
