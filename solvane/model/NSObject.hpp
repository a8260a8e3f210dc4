#pragma once

#include <memory>

namespace solvane {

/// The root of everything a host shares with the library by reference.
///
/// Make instances with `std::make_shared`; they live for as long as the host or the library holds
/// them. Not copyable: an object has an identity.
class NSObject : public std::enable_shared_from_this<NSObject> {
 public:
  NSObject() = default;
  NSObject(const NSObject&) = delete;
  NSObject& operator=(const NSObject&) = delete;
  virtual ~NSObject() = default;
};

}  // namespace solvane
