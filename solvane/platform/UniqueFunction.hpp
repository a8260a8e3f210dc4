#pragma once

#include <cstddef>
#include <functional>
#include <new>
#include <type_traits>
#include <utility>

namespace solvane {

namespace detail {

template <class Callable>
inline constexpr bool canBeEmpty =
    std::is_pointer_v<Callable> || std::is_member_pointer_v<Callable>;

template <class Signature>
inline constexpr bool canBeEmpty<std::function<Signature>> = true;

}  // namespace detail

template <class Signature>
class UniqueFunction;

/// A callable that is moved and never copied, so that what it captures may be move-only and is
/// handed from thread to thread without a copy. Callables of up to six words live inside it. Made
/// from an empty `std::function` or a null pointer, it is empty.
/// Calling an empty one is undefined, as is calling one from two threads at a time.
template <class Result, class... Arguments>
class UniqueFunction<Result(Arguments...)> {
 public:
  UniqueFunction() noexcept = default;
  UniqueFunction(std::nullptr_t) noexcept {}

  template <class Callable>
  requires(!std::is_same_v<std::remove_cvref_t<Callable>, UniqueFunction> &&
           std::is_invocable_r_v<Result, std::decay_t<Callable>&, Arguments...>)
      UniqueFunction(Callable&& callable) {
    using Stored = std::decay_t<Callable>;
    if constexpr (detail::canBeEmpty<std::remove_cvref_t<Callable>>) {
      if (callable == nullptr) return;
    }
    if constexpr (fits<Stored>) {
      ::new (static_cast<void*>(_storage)) Stored(std::forward<Callable>(callable));
    } else {
      ::new (static_cast<void*>(_storage)) Stored*(new Stored(std::forward<Callable>(callable)));
    }
    _operations = &operationsFor<Stored>;
  }

  UniqueFunction(UniqueFunction&& other) noexcept
      : _operations(std::exchange(other._operations, nullptr)) {
    if (_operations) _operations->relocate(other._storage, _storage);
  }

  UniqueFunction& operator=(UniqueFunction&& other) noexcept {
    if (this != &other) {
      reset();
      _operations = std::exchange(other._operations, nullptr);
      if (_operations) _operations->relocate(other._storage, _storage);
    }
    return *this;
  }

  ~UniqueFunction() { reset(); }

  explicit operator bool() const noexcept { return _operations != nullptr; }

  Result operator()(Arguments... arguments) {
    return _operations->invoke(_storage, std::forward<Arguments>(arguments)...);
  }

 private:
  struct Operations {
    Result (*invoke)(void*, Arguments&&...);
    void (*relocate)(void* from, void* to) noexcept;
    void (*destroy)(void*) noexcept;
  };

  static constexpr std::size_t capacity = 6 * sizeof(void*);

  template <class Stored>
  static constexpr bool fits =
      sizeof(Stored) <= capacity &&
      alignof(Stored) <= alignof(std::max_align_t) && std::is_nothrow_move_constructible_v<Stored>;

  template <class Stored>
  static Stored& stored(void* storage) noexcept {
    if constexpr (fits<Stored>) {
      return *std::launder(static_cast<Stored*>(storage));
    } else {
      return **std::launder(static_cast<Stored**>(storage));
    }
  }

  template <class Stored>
  static Result invoke(void* storage, Arguments&&... arguments) {
    return std::invoke(stored<Stored>(storage), std::forward<Arguments>(arguments)...);
  }

  template <class Stored>
  static void relocate(void* from, void* to) noexcept {
    if constexpr (fits<Stored>) {
      ::new (to) Stored(std::move(stored<Stored>(from)));
      stored<Stored>(from).~Stored();
    } else {
      ::new (to) Stored*(&stored<Stored>(from));
    }
  }

  template <class Stored>
  static void destroy(void* storage) noexcept {
    if constexpr (fits<Stored>) {
      stored<Stored>(storage).~Stored();
    } else {
      delete &stored<Stored>(storage);
    }
  }

  template <class Stored>
  static constexpr Operations operationsFor{&invoke<Stored>, &relocate<Stored>, &destroy<Stored>};

  void reset() noexcept {
    if (const auto* operations = std::exchange(_operations, nullptr)) operations->destroy(_storage);
  }

  const Operations* _operations = nullptr;
  alignas(std::max_align_t) std::byte _storage[capacity];
};

}  // namespace solvane
