"""Classes of the program's own logic stay small enough to be read at once.

A struct without functions is a row of a table: it may have as many columns as the table needs.
"""
import re
import unittest

import tree

FOLDERS = ["engine", "shell", "annuity"]
MOST_PUBLIC_FUNCTIONS = 25
MOST_FIELDS = 12

CLASS = re.compile(r"\b(class|struct)\s+(\w+)[^;{}()=]*\{")
ACCESS = re.compile(r"\s*\b(public|protected|private)\s*:(?!:)")
NO_MEMBER = re.compile(r"\s*(using|friend|typedef|static_assert|enum|template\s*<[^>]*>\s*(class|struct)|static)\b")


def without_comments_and_texts(source):
    source = re.sub(r"//[^\n]*|/\*.*?\*/", "", source, flags=re.DOTALL)
    source = re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', '""', source)
    return re.sub(r"^\s*#[^\n]*", "", source, flags=re.MULTILINE)


def closing(source, opening):
    """The index of the brace that closes the one at `opening`."""
    depth = 0
    for place in range(opening, len(source)):
        depth += {"{": 1, "}": -1}.get(source[place], 0)
        if depth == 0:
            return place
    raise ValueError("a brace is not closed")


def members(body):
    """The declarations at the top of a class's body, each with its access, or None for the class's own."""
    found, begin, place, access = [], 0, 0, None
    while place < len(body):
        label = ACCESS.match(body, begin) if place == begin else None
        if label:
            access = label.group(1)
            begin = place = label.end()
        elif body[place] == "{":
            place = closing(body, place) + 1
            declaration = body[begin:place]
            following = body[place:].lstrip()
            if is_function(declaration) and not following.startswith((";", ",", "{", ")")):
                found.append((access, declaration))
                begin = place
        elif body[place] == ";":
            found.append((access, body[begin:place]))
            place += 1
            begin = place
        else:
            place += 1
    return [(access, text.strip()) for access, text in found if text.strip()]


def is_function(declaration):
    head = declaration
    while re.search(r"<[^<>]*>", head):
        head = re.sub(r"<[^<>]*>", "", head)
    head = re.sub(r"\boperator\s*[^\s\w(]+", "operator", head)
    return "(" in re.split(r"[={]", head)[0]


def classes(source):
    """Of each class, nested ones too: its name, public functions and fields, and whether it is a row of a table."""
    source = without_comments_and_texts(source)
    for match in CLASS.finditer(source):
        if source[:match.start()].rstrip().endswith("enum"):
            continue
        body = source[match.end():closing(source, match.end() - 1)]
        functions, fields, row = [], [], match.group(1) == "struct"
        for access, text in members(body):
            public = access == "public" or access is None and match.group(1) == "struct"
            if NO_MEMBER.match(text) or CLASS.match(text) or text.endswith("= delete"):
                continue
            if not is_function(text):
                fields.append(text)
                continue
            row = False
            if public:
                functions.append(text)
        yield match.group(2), functions, fields, row


def complaints(source):
    return ["%s: %d public functions, %d fields" % (name, len(functions), len(fields))
            for name, functions, fields, row in classes(source)
            if len(functions) > MOST_PUBLIC_FUNCTIONS or len(fields) > MOST_FIELDS and not row]


class ClassSize(unittest.TestCase):
    def test_no_class_is_too_large(self):
        for folder in FOLDERS:
            for path in tree.files(".h", ".cpp", below="src/" + folder):
                with self.subTest(file=tree.name(path)):
                    self.assertEqual(complaints(path.read_text(encoding="utf-8")), [])

    def test_classes_of_the_program_are_found(self):
        header = (tree.ROOT / "src/engine/adding_machine.h").read_text(encoding="utf-8")
        counted = {name: (len(functions), len(fields)) for name, functions, fields, _ in classes(header)}
        self.assertGreater(counted["AddingMachine"][0], 10)
        self.assertGreater(counted["AddingMachine"][1], 5)

    def test_functions_and_fields_are_counted(self):
        source = """
            class Machine : public Base {
             public:
              explicit Machine(int size) : size_(size), list_{1, 2} {}
              Machine(const Machine&) = delete;
              bool operator==(const Machine&) const = default;
              int size() const { if (size_ > 0) { return size_; } return 0; }
              virtual void draw(std::function<void()> then = {}) = 0;
              std::function<void(int)> onDraw;  // (a field)
              enum class Kind { One, Two };
              struct Part { int a = 0; int b{f(1)}; };

             private:
              void hidden();
              int size_ = f(2);
              std::array<int, 2> list_{1, 2};
              static constexpr int kMost = 3;
            };"""
        counted = {name: (len(functions), len(fields)) for name, functions, fields, _ in classes(source)}
        self.assertEqual(counted, {"Machine": (4, 3), "Part": (0, 2)})

    def test_large_classes_are_named(self):
        functions = "class A { public: %s };" % " ".join("void f%d();" % i for i in range(26))
        fields = " ".join("int f%d = 0;" % i for i in range(13))
        rows = "struct Row { %s };" % fields
        small = "struct C { void f(); %s };" % " ".join("int f%d = 0;" % i for i in range(12))
        self.assertEqual(complaints(functions + rows + small + "class B { %s };" % fields),
                         ["A: 26 public functions, 0 fields", "B: 0 public functions, 13 fields"])
        self.assertEqual(complaints("struct D { %s private: void f(); };" % fields),
                         ["D: 0 public functions, 13 fields"])
