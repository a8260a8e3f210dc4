#include <solvane/service/Solvane.hpp>
#include <solvane/service/detail/tasks.hpp>

namespace solvane {

void Solvane::deleteAllItemsWithDomains(std::vector<std::string> domainIdentifiers) {
  queueRemoval(std::move(domainIdentifiers), [](std::vector<std::string> domains) {
    Platform::current().searchableIndex->deleteSearchableItemsWithDomainIdentifiers(
        std::move(domains), detail::discard);
  });
}

}  // namespace solvane
