// The database of the program: its connection file, and the update that makes it what the program expects.
#pragma once

#include <QVRlib21.hpp>

#include <functional>
#include <string>

namespace list_form {

// A failure for the person at the screen.
class Problem : public std::runtime_error {
 public:
  explicit Problem(std::wstring text) : std::runtime_error("list_form"), text_(std::move(text)) {}
  const std::wstring& text() const { return text_; }

 private:
  std::wstring text_;
};

// Where the database is. A connection file that is not there yet is written once.
struct Access {
  std::wstring folder, provider = L"SQLOLEDB", options = L"Integrated Security=SSPI;";
};

class Database {
 public:
  explicit Database(const Access& access);

  const qvrlib21::QVRcfp& parameters() const { return parameters_; }
  std::wstring connection_string() const;
  bool up_to_date() const;

  // Brings it up to date, telling how many commands of how many are done. Throws Problem where it is not then.
  void update(const std::function<void(long done, long all)>& progress) const;

 private:
  long version() const;
  void check_update(bool ran, bool whole) const;

  qvrlib21::QVRcfp parameters_ = qvrlib21::create<qvrlib21::QVRcfp>();
};

}  // namespace list_form
