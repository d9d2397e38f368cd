#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

// A project is a directory that holds the flag file "owner"; nothing else distinguishes it.
namespace kestra {

enum class ProjectCheck {
  project,
  notAProject,  // no flag file, or no such directory
  cannotEnter   // the directory is there and cannot be looked into
};

ProjectCheck checkProject(FileSystem& files, const std::string& directory);
inline bool isProject(FileSystem& files, const std::string& directory) {
  return checkProject(files, directory) == ProjectCheck::project;
}

// Whether the second line of the flag file is the owner's mark, without which a project is not deleted.
bool bearsOwnersMark(FileSystem& files, const std::string& directory);

// Makes the directory with its summary file and its flag file, the flag file without write permission. On failure
// nothing of it is left.
Status makeProjectDirectory(FileSystem& files, const std::string& directory);

// Removes the directory with all that is in it, the flag file last, so that what could not be removed whole is still a
// project. Links are removed, never followed. Goes on behind a failure and gives the first.
Status removeProjectDirectory(FileSystem& files, const std::string& directory);

// The projects in a directory and everywhere below it, itself included; links are not followed.
std::vector<std::string> projectsWithin(FileSystem& files, const std::string& directory);

// Takes hold of a project for this program; busy when another program has it.
Result<std::unique_ptr<FileLock>> lockProject(FileSystem& files, const std::string& directory);

}  // namespace kestra
