#pragma once

#include <memory>
#include <vector>

#include <solvane/detail/fatalError.hpp>

namespace solvane::detail {

/// The record of a host's object. The library takes no null objects.
template <class Object>
auto structified(const std::shared_ptr<Object>& object) {
  if (!object) fatalError("an operation was given a null object");
  return object->structify();
}

/// The records of a host's objects, in the order of the list.
template <class Object>
auto structified(const std::vector<std::shared_ptr<Object>>& objects) {
  std::vector<decltype(structified(objects.front()))> records;
  records.reserve(objects.size());
  for (const auto& object : objects) records.push_back(structified(object));
  return records;
}

}  // namespace solvane::detail
