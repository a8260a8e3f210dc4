#pragma once

#include <optional>
#include <utility>
#include <variant>

#include <solvane/platform/Error.hpp>

namespace solvane {

/// The value an operation was asked for, or the error that kept it from giving one.
template <class Value>
class [[nodiscard]] Result {
 public:
  Result(Value value) : _content(std::in_place_index<0>, std::move(value)) {}
  Result(Error error) : _content(std::in_place_index<1>, std::move(error)) {}

  explicit operator bool() const noexcept { return _content.index() == 0; }

  /// Only when there is a value.
  Value& operator*() & { return std::get<0>(_content); }
  const Value& operator*() const& { return std::get<0>(_content); }
  Value&& operator*() && { return std::get<0>(std::move(_content)); }
  Value* operator->() { return &**this; }
  const Value* operator->() const { return &**this; }

  /// Only when there is none.
  [[nodiscard]] const Error& error() const { return std::get<1>(_content); }

 private:
  std::variant<Value, Error> _content;
};

}  // namespace solvane
