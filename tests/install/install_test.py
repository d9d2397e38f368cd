"""Installs into a clean directory, by `cmake --install` and by the Debian package, and works with what is there."""

import json
import os
import shutil
import subprocess
import tempfile
import time
import unittest
import xml.etree.ElementTree

BUILD = os.environ["KESTRA_BUILD_DIR"]
CMAKE = os.environ["KESTRA_CMAKE"]
CPACK = os.environ["KESTRA_CPACK"]
VERSION = os.environ["KESTRA_VERSION"]
PATIENCE = 120  # seconds
SIZES = (16, 24, 32, 48, 64, 128, 256, 512)


def run(*words, **how):
    done = subprocess.run(words, stdin=subprocess.DEVNULL if "input" not in how else None, capture_output=True,
                          encoding="utf-8", timeout=PATIENCE, check=False, **how)
    if done.returncode != 0:
        raise AssertionError(f"{words} ended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


class Installed:
    """What has to hold wherever the tree stands: `root` is its prefix."""

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.base)

    def setUp(self):
        self.home = tempfile.mkdtemp(prefix="kestra-home-")
        self.addCleanup(shutil.rmtree, self.home)
        self.environment = {"HOME": self.home, "PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8",
                            "XDG_CONFIG_HOME": os.path.join(self.home, "config"), "XDG_RUNTIME_DIR": self.home,
                            "QT_QPA_PLATFORM": "offscreen"}

    def at(self, *names):
        return os.path.join(self.root, *names)

    def kestra(self, *words, **how):
        return run(self.at("bin/kestra"), *words, cwd=self.home, env=self.environment, **how)

    def project_with_example(self):
        project = os.path.join(self.home, "dam")
        self.assertEqual(self.kestra("new", project), project + "\n")
        return project, shutil.copy(self.at("share/kestra-b/examples/stock-pond.KSC"), project)

    def test_it_tells_its_version(self):
        self.assertEqual(self.kestra("--version"), f"Kestra B {VERSION}\n")
        self.assertIn(VERSION, run(self.at("bin/kestra-b"), "--version", env=self.environment))

    def test_it_builds_an_example_with_its_own_engine(self):
        project, example = self.project_with_example()
        self.kestra("build", example)
        with open(os.path.join(project, "stock-pond.OUT"), "rb") as output:
            self.assertNotEqual(output.read(), b"")
        self.assertIn("stock-pond", self.kestra("summary", "--project", project))
        self.kestra("graph", example, "--graph", "0", "-o", "graph.png")
        with open(os.path.join(self.home, "graph.png"), "rb") as picture:
            self.assertTrue(picture.read().startswith(b"\x89PNG"))

    def test_it_knows_the_catalogues_that_came_with_it(self):
        request = json.dumps({"do": "variable", "name": "fieldTitles"}) + "\n"
        titles = json.loads(self.kestra("drive", input=request))["value"]
        self.assertGreater(len(titles), 0)

    def test_its_window_opens_on_an_example(self):
        _, example = self.project_with_example()
        window = subprocess.Popen([self.at("bin/kestra-b"), example], cwd=self.home, env=self.environment,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.addCleanup(window.stdout.close)
        self.addCleanup(window.wait)
        self.addCleanup(window.kill)
        self.assertEqual(self.holder(example, window), f"program kestra-b, process {window.pid}")
        self.assertIsNone(window.poll())

    def holder(self, example, window):
        """Who has the project of a file, once somebody has."""
        until = time.monotonic() + PATIENCE
        while time.monotonic() < until:
            self.assertIsNone(window.poll(), "the program has ended")
            said = subprocess.run([self.at("bin/kestra"), "drive", example], cwd=self.home, env=self.environment,
                                  stdin=subprocess.DEVNULL, capture_output=True, encoding="utf-8", check=True).stderr
            if "This project is open in " in said:
                return said.split("This project is open in ")[1].split(", of user")[0]
            time.sleep(0.05)
        return None

    def test_everything_for_the_desktop_is_there(self):
        there = ["share/applications/org.kestrab.KestraB.desktop", "share/metainfo/org.kestrab.KestraB.metainfo.xml",
                 "share/mime/packages/kestra-b.xml", "share/icons/hicolor/scalable/apps/kestra-b.svg",
                 "share/doc/kestra-b/copyright", "share/doc/kestra-b/formats/control-file.md", "lib/kestra-b/ASFILE",
                 "lib/kestra-b/KestraSim.exe"]
        there += [f"share/icons/hicolor/{size}x{size}/apps/kestra-b.png" for size in SIZES]
        there += [f"share/man/man1/{page}.1" for page in ("kestra", "kestra-b", "KestraSim.exe")]
        for name in there:
            self.assertTrue(os.path.isfile(self.at(name)), name)

    def test_the_pages_of_the_manual_can_be_set(self):
        if shutil.which("man") is None:
            self.skipTest("no man")
        for page in ("kestra", "kestra-b", "KestraSim.exe"):
            done = subprocess.run(["man", "--warnings", "-l", self.at(f"share/man/man1/{page}.1")],
                                  env={**self.environment, "MANWIDTH": "100"}, stdin=subprocess.DEVNULL,
                                  capture_output=True, encoding="utf-8", check=True)
            self.assertEqual(done.stderr, "", page)
            self.assertIn(f"Kestra B {VERSION}", done.stdout)

    def test_validators_have_nothing_to_say(self):
        if shutil.which("appstreamcli"):
            run("appstreamcli", "validate", "--no-net", self.at("share/metainfo/org.kestrab.KestraB.metainfo.xml"))
        if shutil.which("desktop-file-validate"):
            said = run("desktop-file-validate", self.at("share/applications/org.kestrab.KestraB.desktop"))
            self.assertEqual(said, "")

    def test_a_control_file_has_its_type(self):
        if shutil.which("update-mime-database") is None or shutil.which("gio") is None and shutil.which("xdg-mime") is None:
            self.skipTest("no data base of types")
        types = os.path.join(self.home, "share/mime")
        shutil.copytree(self.at("share/mime"), types)
        run("update-mime-database", types)
        with open(os.path.join(types, "globs2"), encoding="utf-8") as globs:
            self.assertIn("50:application/x-kestra-control-file:*.KSC\n", globs.read().replace("ksc", "KSC"))
        root = xml.etree.ElementTree.parse(os.path.join(types, "application/x-kestra-control-file.xml")).getroot()
        self.assertEqual(root.attrib["type"], "application/x-kestra-control-file")


class Tree(Installed, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.base = cls.root = tempfile.mkdtemp(prefix="kestra-tree-")
        run(CMAKE, "--install", BUILD, "--prefix", cls.root)


@unittest.skipUnless(shutil.which("dpkg-deb") and shutil.which("dpkg-shlibdeps"), "no Debian system")
class Package(Installed, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.base = tempfile.mkdtemp(prefix="kestra-package-")
        cls.root = os.path.join(cls.base, "root/usr")
        run(CPACK, "--config", os.path.join(BUILD, "CPackConfig.cmake"), "-B", cls.base, cwd=cls.base)
        packages = [name for name in os.listdir(cls.base) if name.endswith(".deb")]
        cls.package = os.path.join(cls.base, packages[0])
        run("dpkg-deb", "-x", cls.package, os.path.join(cls.base, "root"))

    def test_it_names_itself_and_what_it_needs(self):
        control = run("dpkg-deb", "-f", self.package)
        self.assertIn("Package: kestra-b\n", control)
        self.assertIn(f"Version: {VERSION}\n", control)
        self.assertIn("libqt6widgets6", control)
        self.assertNotIn("/home/", run("dpkg-deb", "-c", self.package))


if __name__ == "__main__":
    unittest.main()
