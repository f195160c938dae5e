// The subjects of the doctor. Each adds its findings.
#pragma once

#include "qvrscript/doctor/doctor.h"

namespace qvr::script_tool {

class Diagnoses {
 public:
  explicit Diagnoses(std::vector<Diagnosis>& found) : found_(found) {}
  void of(std::string_view subject) { subject_ = subject; }
  void ok(std::initializer_list<TextView> message) { add(Level::Ok, message, {}); }
  void note(std::initializer_list<TextView> message, std::initializer_list<TextView> advice) {
    add(Level::Note, message, advice);
  }
  void error(std::initializer_list<TextView> message, std::initializer_list<TextView> advice) {
    add(Level::Error, message, advice);
  }

 private:
  void add(Level level, std::initializer_list<TextView> message, std::initializer_list<TextView> advice) {
    found_.push_back({level, subject_, join(message), join(advice)});
  }

  std::string_view subject_;
  std::vector<Diagnosis>& found_;
};

Text width_text(unsigned width);  // "32-bit"

// The command that registers this file for the user or the machine, with the regsvr32 of its width.
Text registering(const Facts& facts, unsigned width, RegistrationScope scope, TextView file);

void diagnose_library(const Facts& facts, Diagnoses& found);
void diagnose_registration(const Facts& facts, Diagnoses& found);
void diagnose_type_library(const Facts& facts, Diagnoses& found);
void diagnose_ado(const Facts& facts, Diagnoses& found);
void diagnose_providers(const Facts& facts, Diagnoses& found);
void diagnose_components(const Facts& facts, Diagnoses& found);
void diagnose_language(const Facts& facts, Diagnoses& found);
void diagnose_desktop(const Facts& facts, Diagnoses& found);

}  // namespace qvr::script_tool
