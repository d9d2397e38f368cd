#pragma once

#include "support/contracts/file_system_scene.h"

namespace kestra {

TYPED_TEST_SUITE_P(FileSystemContract);

TYPED_TEST_P(FileSystemContract, readsBackAnyBytes) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  for (int i = 0; i < 11; ++i) bytes += bytes;  // half a megabyte
  this->put("a", bytes);
  this->put("empty", "");
  EXPECT_EQ(this->contentOf("a"), bytes);
  EXPECT_EQ(this->contentOf("empty"), "");
}

TYPED_TEST_P(FileSystemContract, takesAnyNameThatTheSystemAllows) {
  const std::vector<std::string> names = {" blank ends ", "it's \"quoted\"", "two\nlines",
                                          "D\xC3\xA4mme", "\xFF\xFE",        "-rf",
                                          "*?[x]",        "back\\slash",     std::string(255, 'n')};
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    this->put(name, "x" + name);
    EXPECT_EQ(this->contentOf(name), "x" + name);
  }
  const auto entries = this->scene.files.list(this->scene.root);
  ASSERT_TRUE(succeeded(entries));
  EXPECT_EQ(entries.value().size(), names.size());
}

TYPED_TEST_P(FileSystemContract, worksOnPathsBeyond260Characters) {
  std::string name = std::string(100, 'a');
  for (int level = 0; level < 12; ++level) {
    this->putDirectory(name);
    name += "/" + std::string(100, 'a');
  }
  this->put(name, "deep");
  EXPECT_EQ(this->contentOf(name), "deep");
}

TYPED_TEST_P(FileSystemContract, tellsWhatIsNotThereFromEveryOtherFailure) {
  this->put("file", "");
  FileSystem& files = this->scene.files;
  const std::string no = this->at("no");
  const std::string words = "No such file or directory";
  EXPECT_TRUE(failed(files.status(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.linkStatus(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.read(no, 10), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.list(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.canonical(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.makeDirectory(no + "/below"), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.createNew(no + "/below"), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.rename(no, this->at("to")), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.rename(this->at("file"), no + "/to"), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.syncDirectory(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.removeFile(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.removeDirectory(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.setReadOnly(no, true), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.copyMode(no, this->at("file")), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.copyMode(this->at("file"), no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.changeDirectory(no), FailureKind::notFound, words));
  EXPECT_TRUE(failed(files.lock(no), FailureKind::notFound, words));
}

TYPED_TEST_P(FileSystemContract, refusesWhatIsOfTheWrongType) {
  this->put("file", "");
  this->putDirectory("directory");
  FileSystem& files = this->scene.files;
  const std::string file = this->at("file");
  const std::string directory = this->at("directory");
  EXPECT_TRUE(failed(files.read(directory, 10), FailureKind::wrongType, "Is a directory"));
  EXPECT_TRUE(failed(files.removeFile(directory), FailureKind::wrongType, "Is a directory"));
  EXPECT_TRUE(failed(files.rename(file, directory), FailureKind::wrongType, "Is a directory"));
  EXPECT_TRUE(failed(files.list(file), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(files.status(file + "/below"), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(files.createNew(file + "/below"), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(files.syncDirectory(file), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(files.removeDirectory(file), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(files.rename(directory, file), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(files.changeDirectory(file), FailureKind::wrongType, "Not a directory"));
}

TYPED_TEST_P(FileSystemContract, refusesNamesThatNoFileCanHave) {
  FileSystem& files = this->scene.files;
  const std::string tooLong = this->at(std::string(256, 'n'));
  const std::string longPath = this->scene.root + std::string(5000, '/') + "x";
  const std::string zero = this->at(std::string("a\0b", 3));
  EXPECT_TRUE(failed(files.createNew(""), FailureKind::invalidName, "The name is empty"));
  EXPECT_TRUE(failed(files.status(""), FailureKind::invalidName, "The name is empty"));
  EXPECT_TRUE(failed(files.canonical(""), FailureKind::invalidName, "The name is empty"));
  EXPECT_TRUE(failed(files.rename(this->scene.root, ""), FailureKind::invalidName, "The name is empty"));
  EXPECT_TRUE(failed(files.createNew(zero), FailureKind::invalidName, "The name holds a zero byte"));
  EXPECT_TRUE(failed(files.makeDirectory(tooLong), FailureKind::invalidName, "File name too long"));
  EXPECT_TRUE(failed(files.read(longPath, 10), FailureKind::invalidName, "File name too long"));
}

TYPED_TEST_P(FileSystemContract, createsOnlyWhatIsNew) {
  this->put("a", "old");
  this->putDirectory("d");
  this->putLink("astray", "nowhere");
  FileSystem& files = this->scene.files;
  for (const char* name : {"a", "d", "astray"}) {
    EXPECT_TRUE(failed(files.createNew(this->at(name)), FailureKind::exists, "File exists")) << name;
    EXPECT_TRUE(failed(files.makeDirectory(this->at(name)), FailureKind::exists, "File exists")) << name;
  }
  EXPECT_EQ(this->contentOf("a"), "old");
  EXPECT_EQ(this->listing(""), "a:f astray:l d:d");
}

TYPED_TEST_P(FileSystemContract, appendsToWhatStandsThereOrBegins) {
  this->put("old", "12");
  this->putDirectory("d");
  this->putLink("link", "old");
  FileSystem& files = this->scene.files;
  for (const char* name : {"old", "link", "fresh", "fresh"}) {
    EXPECT_TRUE(succeeded(files.append(this->at(name)).value()->write("34"))) << name;
  }
  EXPECT_EQ(this->contentOf("old") + " " + this->contentOf("fresh"), "123434 3434");
  EXPECT_TRUE(failed(files.append(this->at("d")), FailureKind::wrongType, "Is a directory"));
  EXPECT_TRUE(failed(files.append(this->at("no/below")), FailureKind::notFound, "No such file or directory"));
}

TYPED_TEST_P(FileSystemContract, readsNoMoreThanTheLimit) {
  this->put("ten", "0123456789");
  FileSystem& files = this->scene.files;
  EXPECT_TRUE(succeeded(files.read(this->at("ten"), 10)));
  EXPECT_TRUE(failed(files.read(this->at("ten"), 9), FailureKind::tooLarge, "File too large"));
  EXPECT_TRUE(failed(files.read(this->at("ten"), 0), FailureKind::tooLarge, "File too large"));
}

TYPED_TEST_P(FileSystemContract, readsTheStartOfAFile) {
  this->put("ten", "0123456789");
  this->putDirectory("d");
  FileSystem& files = this->scene.files;
  for (const auto& [most, bytes] : {std::pair(0U, ""), std::pair(4U, "0123"), std::pair(99U, "0123456789")}) {
    const auto start = files.readStart(this->at("ten"), most);
    ASSERT_TRUE(succeeded(start));
    EXPECT_EQ(start.value(), bytes);
  }
  EXPECT_TRUE(failed(files.readStart(this->at("d"), 4), FailureKind::wrongType, "Is a directory"));
  EXPECT_TRUE(failed(files.readStart(this->at("no"), 4), FailureKind::notFound, "No such file or directory"));
}

TYPED_TEST_P(FileSystemContract, tellsTypeSizeAndWhetherAFileMayBeWritten) {
  this->put("a", "12345");
  this->putDirectory("d");
  this->putLink("toFile", "a");
  this->putLink("toDirectory", this->at("d"));
  FileSystem& files = this->scene.files;
  EXPECT_EQ(files.status(this->at("a")).value().size, 5U);
  EXPECT_EQ(files.status(this->at("toFile")).value().size, 5U);
  EXPECT_EQ(files.status(this->at("d")).value().type, TestFixture::Type::directory);
  EXPECT_EQ(files.status(this->at("toDirectory")).value().type, TestFixture::Type::directory);
  EXPECT_EQ(files.linkStatus(this->at("toDirectory")).value().type, TestFixture::Type::link);
  EXPECT_EQ(files.linkStatus(this->at("a")).value().type, TestFixture::Type::file);
  EXPECT_TRUE(files.status(this->at("a")).value().writable);
  EXPECT_TRUE(succeeded(files.setReadOnly(this->at("a"), true)));
  EXPECT_FALSE(files.status(this->at("a")).value().writable);
  EXPECT_TRUE(succeeded(files.setReadOnly(this->at("a"), false)));
  EXPECT_TRUE(files.status(this->at("a")).value().writable);
}

TYPED_TEST_P(FileSystemContract, listsSortedByBytesAndDoesNotFollowLinks) {
  for (const char* name : {"b", "B", "a", ".hidden"}) this->put(name, "");
  this->putDirectory("c");
  this->putLink("l", "c");
  EXPECT_EQ(this->listing(""), ".hidden:f B:f a:f b:f c:d l:l");
  EXPECT_EQ(this->listing("c"), "");
  EXPECT_TRUE(failed(this->scene.files.list(this->at("l")), FailureKind::wrongType, "Not a directory"));
}

TYPED_TEST_P(FileSystemContract, resolvesLinksAndDots) {
  this->putDirectory("d");
  this->put("d/a", "x");
  this->putLink("toD", "d");
  this->putLink("toA", "toD/../d/./a");
  this->putLink("loop", "loop");
  FileSystem& files = this->scene.files;
  EXPECT_EQ(files.canonical(this->at("toD/a")).value(), this->at("d/a"));
  EXPECT_EQ(files.canonical(this->at("toA")).value(), this->at("d/a"));
  EXPECT_EQ(files.canonical(this->at("toD/.././d/")).value(), this->at("d"));
  EXPECT_EQ(files.canonical("/").value(), "/");
  EXPECT_EQ(this->contentOf("toA"), "x");
  EXPECT_TRUE(failed(files.canonical(this->at("loop")), FailureKind::other, "Too many levels of symbolic links"));
}

TYPED_TEST_P(FileSystemContract, renamesOverAFile) {
  this->put("new", "new");
  this->put("old", "old");
  this->putDirectory("d");
  this->put("d/x", "x");
  this->putDirectory("full");
  this->put("full/x", "");
  FileSystem& files = this->scene.files;
  EXPECT_TRUE(succeeded(files.rename(this->at("new"), this->at("old"))));
  EXPECT_TRUE(succeeded(files.rename(this->at("d"), this->at("e"))));
  EXPECT_TRUE(succeeded(files.rename(this->at("e"), this->at("e"))));
  EXPECT_TRUE(failed(files.rename(this->at("e"), this->at("e/below")), FailureKind::other, "Invalid argument"));
  EXPECT_TRUE(failed(files.rename(this->at("e"), this->at("full")), FailureKind::other, "Directory not empty"));
  EXPECT_EQ(this->listing(""), "e:d full:d old:f");
  EXPECT_EQ(this->contentOf("old"), "new");
  EXPECT_EQ(this->contentOf("e/x"), "x");
}

TYPED_TEST_P(FileSystemContract, removesFilesEmptyDirectoriesAndLinksThemselves) {
  this->putDirectory("d");
  this->put("d/a", "");
  this->putLink("l", "d");
  FileSystem& files = this->scene.files;
  EXPECT_TRUE(failed(files.removeDirectory(this->at("d")), FailureKind::other, "Directory not empty"));
  EXPECT_TRUE(failed(files.removeDirectory(this->at("l")), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(succeeded(files.removeFile(this->at("l"))));
  EXPECT_EQ(this->listing("d"), "a:f");
  EXPECT_TRUE(succeeded(files.removeFile(this->at("d/a"))));
  EXPECT_TRUE(succeeded(files.removeDirectory(this->at("d"))));
  EXPECT_EQ(this->listing(""), "");
}

TYPED_TEST_P(FileSystemContract, countsRelativePathsFromTheCurrentDirectory) {
  FileSystem& files = this->scene.files;
  const std::string before = files.currentDirectory();
  this->putDirectory("d");
  this->putLink("l", "d");
  ASSERT_TRUE(succeeded(files.changeDirectory(this->at("l"))));
  EXPECT_EQ(files.currentDirectory(), this->at("d"));
  EXPECT_TRUE(succeeded(files.makeDirectory("below")));
  EXPECT_EQ(this->listing("d"), "below:d");
  EXPECT_TRUE(succeeded(files.changeDirectory("below")));
  EXPECT_TRUE(succeeded(files.removeDirectory(this->at("d/below"))));
  EXPECT_EQ(files.currentDirectory(), "/");
  EXPECT_TRUE(succeeded(files.changeDirectory(before)));
}

TYPED_TEST_P(FileSystemContract, givesALockToOneAtATime) {
  this->put("a", "");
  FileSystem& files = this->scene.files;
  {
    const auto held = files.lock(this->at("a"));
    ASSERT_TRUE(succeeded(held));
    EXPECT_TRUE(files.lock(this->at("a")).failedAs(FailureKind::busy));
    EXPECT_FALSE(files.lock(this->at("a")).failure().reason.empty());
  }
  EXPECT_TRUE(succeeded(files.lock(this->at("a"))));
  EXPECT_TRUE(succeeded(files.lock(this->at("a"))));
}

TYPED_TEST_P(FileSystemContract, hasTheRootAmongItsRoots) {
  const std::vector<std::string> roots = this->scene.files.roots();
  ASSERT_FALSE(roots.empty());
  EXPECT_EQ(roots.front(), "/");
  EXPECT_TRUE(std::is_sorted(roots.begin(), roots.end()));
}

TYPED_TEST_P(FileSystemContract, writesAWholeFileOverAnOldOneAndKeepsItsPermissions) {
  FileSystem& files = this->scene.files;
  const std::string longName(255, 'n');
  EXPECT_TRUE(succeeded(writeWholeFile(files, this->at(longName), "first")));
  EXPECT_TRUE(succeeded(writeWholeFile(files, this->at(longName), "second")));
  EXPECT_EQ(this->contentOf(longName), "second");
  this->put("readOnly", "old");
  ASSERT_TRUE(succeeded(files.setReadOnly(this->at("readOnly"), true)));
  EXPECT_TRUE(failed(writeWholeFile(files, this->at("readOnly"), "new"), FailureKind::denied, "The file is read-only"));
  EXPECT_EQ(this->contentOf("readOnly"), "old");
  EXPECT_EQ(this->listing(""), longName + ":f readOnly:f");
}

TYPED_TEST_P(FileSystemContract, writesAWholeFileThroughLinks) {
  FileSystem& files = this->scene.files;
  this->putDirectory("d");
  this->put("d/a", "old");
  this->putLink("toA", "d/a");
  this->putLink("toD", "d");
  this->putLink("astray", "nowhere");
  EXPECT_TRUE(succeeded(writeWholeFile(files, this->at("toA"), "one")));
  EXPECT_EQ(this->contentOf("d/a"), "one");
  EXPECT_TRUE(succeeded(writeWholeFile(files, this->at("toD/a"), "two")));
  EXPECT_EQ(this->contentOf("toA"), "two");
  EXPECT_TRUE(succeeded(writeWholeFile(files, this->at("toD/b"), "three")));
  EXPECT_TRUE(
      failed(writeWholeFile(files, this->at("astray"), "x"), FailureKind::notFound, "No such file or directory"));
  EXPECT_EQ(this->listing(""), "astray:l d:d toA:l toD:l");
  EXPECT_EQ(this->listing("d"), "a:f b:f");
}

TYPED_TEST_P(FileSystemContract, writesAWholeFileWhereStraysOfAKilledProgramAreLeft) {
  FileSystem& files = this->scene.files;
  this->put(".kestra-0.tmp", "half");
  this->put(".kestra-1.tmp", "");
  EXPECT_TRUE(succeeded(writeWholeFile(files, this->at("a"), "whole")));
  EXPECT_EQ(this->listing(""), ".kestra-0.tmp:f .kestra-1.tmp:f a:f");
}

TYPED_TEST_P(FileSystemContract, writesNoWholeFileOverADirectoryOrIntoNowhere) {
  FileSystem& files = this->scene.files;
  this->putDirectory("d");
  this->put("f", "");
  EXPECT_TRUE(failed(writeWholeFile(files, this->at("d"), "x"), FailureKind::wrongType, "Is a directory"));
  EXPECT_TRUE(failed(writeWholeFile(files, this->at("f/a"), "x"), FailureKind::wrongType, "Not a directory"));
  EXPECT_TRUE(failed(writeWholeFile(files, this->at("no/a"), "x"), FailureKind::notFound, "No such file or directory"));
  EXPECT_TRUE(failed(writeWholeFile(files, "", "x"), FailureKind::invalidName, "The name is empty"));
  EXPECT_TRUE(failed(writeWholeFile(files, this->at(std::string(256, 'n')), "x"), FailureKind::invalidName,
                     "File name too long"));
  EXPECT_EQ(this->listing(""), "d:d f:f");
}

TYPED_TEST_P(FileSystemContract, removesATreeAndNothingOutsideOfIt) {
  FileSystem& files = this->scene.files;
  this->putDirectory("outside");
  this->put("outside/kept", "kept");
  for (const char* name : {"tree", "tree/a", "tree/a/b", "tree/empty"}) this->putDirectory(name);
  this->put("tree/a/b/file", "");
  this->putLink("tree/a/out", this->at("outside"));
  this->putLink("tree/a/up", "..");
  this->putLink("toOutside", "outside");
  EXPECT_TRUE(succeeded(removeTree(files, this->at("tree"))));
  EXPECT_TRUE(succeeded(removeTree(files, this->at("toOutside"))));
  EXPECT_EQ(this->listing(""), "outside:d");
  EXPECT_EQ(this->contentOf("outside/kept"), "kept");
  EXPECT_TRUE(succeeded(removeTree(files, this->at("outside/kept"))));
  EXPECT_TRUE(failed(removeTree(files, this->at("tree")), FailureKind::notFound, "No such file or directory"));
}

TYPED_TEST_P(FileSystemContract, findsAFileWhateverItsCaseTheExactNameFirst) {
  FileSystem& files = this->scene.files;
  this->putDirectory("d");
  this->put("d/Dam.OUT", "");
  this->put("d/dam.out", "");
  this->putDirectory("d/Solver");
  this->putLink("l", "d");
  EXPECT_EQ(findIgnoringCase(files, this->at("d"), "dam.out").value(), this->at("d/dam.out"));
  EXPECT_EQ(findIgnoringCase(files, this->at("d"), "DAM.out").value(), this->at("d/Dam.OUT"));
  EXPECT_EQ(findIgnoringCase(files, this->at("l"), "DAM.out").value(), this->at("l/Dam.OUT"));
  for (const char* name : {"solver", "Solver", "dam"}) {
    EXPECT_TRUE(
        failed(findIgnoringCase(files, this->at("d"), name), FailureKind::notFound, "No such file or directory"))
        << name;
  }
  EXPECT_TRUE(findIgnoringCase(files, this->at("no"), "dam").failedAs(FailureKind::notFound));
}

TYPED_TEST_P(FileSystemContract, makesTheDirectoriesThatAreMissing) {
  FileSystem& files = this->scene.files;
  this->putDirectory("d");
  this->putLink("l", "d");
  this->put("file", "");
  EXPECT_TRUE(succeeded(makeDirectories(files, this->at("l/a//b/"))));
  EXPECT_TRUE(succeeded(makeDirectories(files, this->at("l/a/b"))));
  EXPECT_TRUE(isDirectory(files, this->at("d/a/b")));
  EXPECT_TRUE(exists(files, this->at("file")));
  EXPECT_FALSE(isDirectory(files, this->at("file")));
  EXPECT_FALSE(exists(files, this->at("other")));
  const Status blocked = makeDirectories(files, this->at("file/a/b"));
  EXPECT_TRUE(failed(blocked, FailureKind::exists, "File exists"));
  EXPECT_EQ(blocked.failure().path, this->at("file"));
}

REGISTER_TYPED_TEST_SUITE_P(FileSystemContract, readsBackAnyBytes, takesAnyNameThatTheSystemAllows,
                            worksOnPathsBeyond260Characters, tellsWhatIsNotThereFromEveryOtherFailure,
                            refusesWhatIsOfTheWrongType, refusesNamesThatNoFileCanHave, createsOnlyWhatIsNew,
                            appendsToWhatStandsThereOrBegins, readsNoMoreThanTheLimit, readsTheStartOfAFile,
                            tellsTypeSizeAndWhetherAFileMayBeWritten, listsSortedByBytesAndDoesNotFollowLinks,
                            resolvesLinksAndDots, renamesOverAFile, removesFilesEmptyDirectoriesAndLinksThemselves,
                            countsRelativePathsFromTheCurrentDirectory, givesALockToOneAtATime, hasTheRootAmongItsRoots,
                            writesAWholeFileOverAnOldOneAndKeepsItsPermissions, writesAWholeFileThroughLinks,
                            writesAWholeFileWhereStraysOfAKilledProgramAreLeft,
                            writesNoWholeFileOverADirectoryOrIntoNowhere, removesATreeAndNothingOutsideOfIt,
                            findsAFileWhateverItsCaseTheExactNameFirst, makesTheDirectoriesThatAreMissing);

}  // namespace kestra
