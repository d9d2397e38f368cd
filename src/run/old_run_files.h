#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"

namespace kestra {

// Deletes what an earlier run of that name has left: the files `stem`.* and the files in the directory `stem`, where
// `stem` is the run's name in a folder of the project named by what stands before the name's last "_", in the project
// itself without one. The letter case of the files does not count. What a user has written stays (isInputOfRuns), and
// so do the results of another control file, such as those of "dam.b.KSC" or "Dam.KSC" when "dam" is cleaned, and the
// file `controlFile`, whose name may end in anything. What cannot be deleted is left. Nothing happens without a
// project, or for a name that leads out of it or names none of its files.
void DeleteOldRunFiles(FileSystem& files, const std::string& projectDirectory, const std::string& runName,
                       const std::string& controlFile = {});

// The same for given stems; each directory is gone through once for all of them.
void deleteFilesOfStems(FileSystem& files, const std::vector<std::string>& stems, const std::string& controlFile = {});

}  // namespace kestra
