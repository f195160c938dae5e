// What the run-time calls when something fails in it, with small means. Its own functions of these names, which the
// linker then leaves out, would bring 130 KB along: exceptions that carry a text in the strings of another age, and the
// parser that spells the type of an exception readably on a console that a host does not have.
#include <cstdlib>
#include <exception>
#include <new>
#include <string>

namespace {

// An error of this library, never of its caller; the policies of the members tell memory from all the rest only.
struct RunTimeFault : std::exception {
  const char* what() const noexcept override { return "run-time failure"; }
};

}  // namespace

namespace std {
void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_array_new_length(); }
void __throw_length_error(const char*) { throw RunTimeFault(); }
void __throw_logic_error(const char*) { throw RunTimeFault(); }
void __throw_out_of_range_fmt(const char*, ...) { throw RunTimeFault(); }
}  // namespace std

namespace __gnu_cxx {
// Called before a process ends because nobody takes an exception. Declared, so that the definition is seen to be meant.
void __verbose_terminate_handler();
void __verbose_terminate_handler() { std::abort(); }
}  // namespace __gnu_cxx
