// What the C++ library calls when it can't go on. Its own functions bring along half of it: strings, locales and the
// names of types, for messages that nobody would ever read.
#include <cstdlib>
#include <exception>
#include <functional>
#include <new>

namespace __gnu_cxx {

void __verbose_terminate_handler() { std::abort(); }

}  // namespace __gnu_cxx

namespace std {

void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_array_new_length(); }
void __throw_length_error(const char*) { throw bad_alloc(); }  // More was asked for than there can be.
void __throw_logic_error(const char*) { throw exception(); }
void __throw_out_of_range(const char*) { throw exception(); }
void __throw_out_of_range_fmt(const char*, ...) { throw exception(); }
void __throw_bad_function_call() { throw exception(); }

}  // namespace std
