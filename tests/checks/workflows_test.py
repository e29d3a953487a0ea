"""Every command, script and path that the workflows of the forge name exists."""
import json
import re
import shlex
import unittest

import tree

try:
    import yaml
except ImportError:
    yaml = None

# What the machines of the forge bring, by shell.
COMMANDS = {
    "bash": {"apt-get", "base64", "cp", "echo", "exit", "export", "gh", "git", "grep", "mktemp", "printf", "rm",
             "sha256sum", "tar", "trap"},
    "cmd": {"call", "cmake", "echo", "taskkill"},
    "pwsh": set(),
}
KEYWORDS = {"if", "then", "fi", "else", "["}
ASSIGNMENT = re.compile(r"^\w+=")
EXPRESSION = re.compile(r"\$\{\{.*?\}\}")
ACTION = re.compile(r"^[\w-]+/[\w-]+@v\d+$")


def workflows():
    """{name: contents} of the workflows."""
    return {tree.name(path): yaml.safe_load(path.read_text(encoding="utf-8"))
            for path in sorted((tree.ROOT / ".github" / "workflows").glob("*.yml"))}


def command_of(line):
    """The word of a line of a script that names a program or a script, or None."""
    lexer = shlex.shlex(EXPRESSION.sub("x", line), posix=True, punctuation_chars=True)
    # A backslash is a separator of paths on Windows.
    lexer.escape = ""
    for word in lexer:
        if not ASSIGNMENT.match(word) and word not in KEYWORDS:
            return word
        if word == "[" or ASSIGNMENT.match(word) and "$(" in line:
            return None
    return None


def unknown_commands(script, shell):
    """The commands of a script that are neither in the tree nor on the machines of the forge."""
    commands = [command_of(line) for line in script.splitlines() if line.strip()]
    if shell == "cmd":
        # What `call` is followed by is a script of the tree.
        commands += re.findall(r"^call (\S+)", script, re.MULTILINE)
    return [command for command in commands if command and command not in COMMANDS[shell]
            and not (tree.ROOT / command).is_file()]


@unittest.skipUnless(yaml, "reading the workflows takes PyYAML")
class Workflows(unittest.TestCase):
    def jobs(self):
        for name, workflow in workflows().items():
            for key, job in workflow["jobs"].items():
                yield "%s: %s" % (name, key), job

    def test_there_are_some(self):
        self.assertEqual(set(workflows()), {".github/workflows/ci.yml", ".github/workflows/release.yml"})

    def test_their_commands_exist(self):
        for name, job in self.jobs():
            usual = job.get("defaults", {}).get("run", {}).get("shell", "bash")
            for step in job["steps"]:
                with self.subTest(job=name, step=step.get("name", step.get("uses"))):
                    shell = step.get("shell", usual)
                    self.assertEqual(unknown_commands(step.get("run", ""), shell), [])

    def test_an_unknown_command_is_noticed(self):
        self.assertEqual(unknown_commands("./test\n./testify --quick\nsudo rm x", "bash"), ["./testify", "sudo"])
        self.assertEqual(unknown_commands("call test.cmd /Y\ncall retest.cmd", "cmd"), ["retest.cmd"])
        self.assertEqual(unknown_commands(".github/scripts/take-picture.ps1 x", "pwsh"),
                         [".github/scripts/take-picture.ps1"])

    def test_every_job_has_a_time_limit_and_every_action_a_version(self):
        for name, job in self.jobs():
            with self.subTest(job=name):
                self.assertIn("timeout-minutes", job)
                for step in job["steps"]:
                    self.assertRegex(step.get("uses", "actions/none@v1"), ACTION)

    def test_the_presets_and_targets_that_they_name_exist(self):
        presets = {preset["name"] for preset in
                   json.loads((tree.ROOT / "CMakePresets.json").read_text(encoding="utf-8"))["buildPresets"]}
        targets = {target for path in tree.files(".txt") if path.name == "CMakeLists.txt"
                   for target in re.findall(r"add_custom_target\((\w+)", path.read_text(encoding="utf-8"))}
        named = re.findall(r"--preset (\S+) --target (\S+)",
                           "\n".join(step.get("run", "") for _, job in self.jobs() for step in job["steps"]))
        self.assertTrue(named)
        for preset, target in named:
            self.assertIn(preset, presets)
            self.assertIn(target, targets)

    def test_what_they_keep_is_where_builds_put_it(self):
        for name, job in self.jobs():
            for step in job["steps"]:
                if step.get("uses", "").startswith("actions/upload-artifact"):
                    for path in step["with"]["path"].split():
                        self.assertTrue(path.startswith("build/"), "%s keeps %s" % (name, path))
