"""The scenario runner detects errors. It is tested with a driver that gives prepared answers."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

import tree

sys.path.insert(0, str(tree.ROOT / "tests/scenarios"))
import run_scenarios  # noqa: E402

# Answers ok, or what one of its arguments COMMAND=ANSWER says for the command; counts the resets.
DRIVER = """
import sys, time
resets = 0
answers = dict(argument.split("=", 1) for argument in sys.argv[1:])
for line in sys.stdin:
    answer = answers.get(line.strip(), '{"ok":true}')
    if answer == "silence":
        time.sleep(60)
    if answer == "end":
        sys.exit(3)
    resets += line.strip() == "reset"
    print(answer.replace("RESETS", str(resets)), flush=True)
sys.exit(int(answers.get("code", 0)))
"""


class ScenarioRunner(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        (self.folder / "driver.py").write_text(DRIVER, encoding="utf-8")

    def driver(self, *answers):
        return [sys.executable, str(self.folder / "driver.py"), *answers]

    def run_on(self, scenario, *arguments):
        """The runner's exit code and what it printed for one scenario."""
        (self.folder / "one.txt").write_text(scenario, encoding="utf-8")
        runner = str(tree.ROOT / "tests/scenarios/run_scenarios.py")
        done = subprocess.run([sys.executable, "-B", runner, "--folder", str(self.folder), *arguments],
                              stdout=subprocess.PIPE, text=True, check=False)
        return done.returncode, done.stdout.splitlines()

    def assert_passes(self, result):
        self.assertEqual(result, (0, ["1 passed, 0 failed"]))

    def assert_fails(self, result, line):
        self.assertEqual(result[0], 1)
        self.assertIn(line, result[1])
        self.assertEqual(result[1][-1], "0 passed, 1 failed")

    def test_an_answer_may_contain_more_than_expected(self):
        self.assert_passes(self.run_on('snapshot\n=> {"entry":"1","caret":1}\n', *self.driver(
            'snapshot={"caret":1.0,"entry":"1","tape":""}')))

    def test_another_answer_fails_and_shows_the_difference(self):
        self.assert_fails(self.run_on('snapshot\n=> {"entry":"1","caret":1}\n', *self.driver(
            'snapshot={"entry":"2","caret":1}')), '    expected  {"entry": "1"}')

    def test_true_is_not_one(self):
        self.assert_fails(self.run_on('get\n=> {"value":1}\n', *self.driver('get={"value":true}')),
                          "one.txt:1: get")

    def test_an_error_fails_where_none_is_expected(self):
        self.assert_fails(self.run_on("start\n", *self.driver('start={"error":"why"}')),
                          '    got       {"error": "why"}')

    def test_any_error_passes_where_one_is_expected(self):
        self.assert_passes(self.run_on('start\n=> {"error":"*"}\n',
                                       *self.driver('start={"error":"why"}')))

    def test_a_driver_that_hangs_fails(self):
        self.assert_fails(self.run_on("start\n", "--timeout", "0.5", *self.driver("start=silence")),
                          "    no answer")

    def test_a_driver_that_crashes_fails(self):
        self.assert_fails(self.run_on("start\n", "false"), "    the driver ended with code 1")

    def test_two_drivers_that_agree_pass(self):
        same = self.driver('get={"value":2}')
        self.assert_passes(self.run_on("get\n", "--compare", *same, "--", *same))

    def test_two_drivers_that_differ_fail(self):
        self.assert_fails(self.run_on("get\n", "--compare", *self.driver('get={"value":2}'), "--",
                                      *self.driver('get={"value":3}')), "    the drivers differ")

    def test_an_in_memory_scenario_is_reported_as_skipped_on_real_windows(self):
        code, said = self.run_on("# only: in-memory\nfiles\n", "--real-windows", *self.driver())
        self.assertEqual((code, said[-1]), (0, "0 passed, 0 failed, 1 skipped"))
        self.assertEqual(said[0], "one.txt: left out, only for the in-memory driver")

    def test_one_driver_runs_all_scenarios_and_is_reset_between_them(self):
        for name in ["0", "1"]:
            (self.folder / (name + ".txt")).write_text('get\n=> {"value":%s}\n' % name, encoding="utf-8")
        result = self.run_on('get\n=> {"value":2}\n', "--real-windows", *self.driver('get={"value":RESETS}'))
        self.assertEqual(result, (0, ["3 passed, 0 failed"]))

    def test_after_a_crash_the_next_scenario_gets_a_new_driver(self):
        (self.folder / "two.txt").write_text('get\n=> {"value":0}\n', encoding="utf-8")
        result = self.run_on("start\n", "--real-windows", *self.driver("start=end", 'get={"value":RESETS}'))
        self.assertEqual(result[1], ["one.txt:", "    the driver ended with code 3", "one.txt:1: start",
                                     "    no answer", "1 passed, 1 failed"])

    def test_a_driver_that_crashes_after_the_last_answer_fails(self):
        self.assertEqual(self.run_on("start\n", *self.driver("code=1")),
                         (1, ["at the end:", "    the driver ended with code 1", "1 passed, 1 failed"]))

    def test_scenarios_in_folders_are_found_and_chosen_by_folder_and_name(self):
        for name in ["tape/off.txt", "tape/padded.txt", "memory/off.txt"]:
            (self.folder / name).parent.mkdir(exist_ok=True)
            (self.folder / name).write_text("start\n", encoding="utf-8")
        self.assert_passes(self.run_on("start\n", "--only", "tape/off", *self.driver()))
        self.assertEqual(self.run_on("start\n", *self.driver())[1], ["4 passed, 0 failed"])

    def test_parts_are_together_all_scenarios(self):
        names = [chr(letter) for letter in range(ord("a"), ord("h"))]
        for parts in (1, 2, 3, 7):
            ran = [name for number in range(1, parts + 1)
                   for name in run_scenarios.part_of(names, "%d/%d" % (number, parts))]
            self.assertEqual(ran, names)
        (self.folder / "two.txt").write_text("start\n", encoding="utf-8")
        self.assert_passes(self.run_on("start\n", "--part", "2/2", *self.driver()))

    def test_no_scenario_at_all_fails(self):
        self.assertEqual(self.run_on("start\n", "--only", "other", *self.driver())[0], 1)
