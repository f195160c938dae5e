// What a trial has of the machine: the library and other classes, used as a host uses them.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "base/value.h"

namespace qvr::script_tool {

enum class Access { Call, Get, Put };

// What becomes of the library's boxes: they are answered, or without a desktop questions are taken as No, or another
// component shows some, which nobody answers.
enum class Boxes { Answered, TakenAsNo, Elsewhere };

// Every member throws RuntimeFailure with the failure of the object, or of its creation.
class TriedMachine {
 public:
  // Hears an event of the runner: its number in the type library, and its argument.
  using Heard = std::function<void(std::int32_t event, const Value& argument)>;

  virtual ~TriedMachine() = default;

  // How the classes are created: for output, such as "as registered".
  virtual Text way() = 0;
  // An object of the library by the name of its class, late-bound.
  virtual Value created(TextView class_name) = 0;
  // What a member of another object of this class answers through its dual interface:
  // CadenaVersion, Archivo, UsuarioSegunMotor (of SQL Server), NumPropiedades or Name.
  virtual Value early_answer(TextView class_name) = 0;
  virtual Value created_elsewhere(TextView program_id) = 0;
  virtual Value use(const Value& object, Access access, TextView member, std::vector<Value> arguments) = 0;
  // Calls with an array by reference behind the other arguments, which the call changes.
  virtual Value changed_by(const Value& object, TextView member, std::vector<Value> arguments, Array& last) = 0;
  // Until the answer ends.
  virtual std::shared_ptr<void> listen(const Value& runner, Heard heard) = 0;

  // Boxes are answered while this lives, questions as told here; the first answer is No.
  virtual Boxes boxes() = 0;
  virtual void answer_questions(bool yes) = 0;

  virtual Text locale_name() = 0;
  virtual Text decimal_sign() = 0;
  // A file as ODBC drivers find it.
  virtual Text path_for_drivers(TextView path) = 0;
};

// Null where there is no automation. Defined by windows/ or posix/, and by tests.
std::unique_ptr<TriedMachine> machine_to_try();

}  // namespace qvr::script_tool
