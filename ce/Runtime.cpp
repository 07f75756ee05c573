// The part of the language's runtime that the DLL brings along itself. Whatever else the compiler
// asks for ends as an undefined symbol at link time, which is intended: the import list is closed.
#include <cstddef>
#include <new>

// The platform's operator new gives null when there is no memory; that is the nothrow form.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return ::operator new(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
  return ::operator new[](size);
}
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept {
  ::operator delete(memory);
}
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept {
  ::operator delete[](memory);
}

const std::nothrow_t std::nothrow{};

// Stands in the slots of abstract functions; no object of an abstract class exists to call one.
extern "C" [[noreturn]] void __cxa_pure_virtual() { __builtin_trap(); }
