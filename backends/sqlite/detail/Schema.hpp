#pragma once

namespace solvane::sqlite {

class Connection;

/// Proves that the file is an index of ours in a format we know, or makes an empty file one.
/// Leaves any other file untouched and throws `Failure`.
void prepareSchema(Connection& connection);

/// How the connection that writes works: what it commits is on the disk, and what it deletes is
/// overwritten.
void prepareForWriting(Connection& connection);

}  // namespace solvane::sqlite
