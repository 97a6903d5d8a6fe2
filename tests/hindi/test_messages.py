"""No message of the message dialog lacks its Hindi.

Reads the sources as a compiler's first pass does. What goes to ShowMsg or ShowMessage must be whole literals (a message
put together at run time has no Hindi), and have its Hindi. Where a name is passed instead, the text stands elsewhere in
the sources: so every literal that is a sentence must have its Hindi too, unless it goes to a plain box, an error, the
log or the findings of the shop's check, or the translators' file says that it stays in English ("as: ").
"""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MESSAGES = ROOT / "resources" / "hindi" / "messages.txt"
sys.path.insert(0, str(ROOT / "tools" / "hindi"))

from make_lang import read_kept, read_messages  # noqa: E402

TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?:u8|u|U|L)?R"(?P<fence>[^(]*)\((?P<raw>.*?)\)(?P=fence)"
      | (?:u8|u|U|L)?"(?P<text>(?:[^"\\\n]|\\.)*)"(?:_s|_qs|_sv)?
      | (?P<char>(?:u8|u|U|L)?'(?:[^'\\\n]|\\.)+')
      | (?P<name>[A-Za-z_]\w*)
      | (?P<number>\d[\w.']*)
      | (?P<mark>\S)""",
    re.VERBOSE | re.DOTALL,
)
ESCAPE = re.compile(r"\\(.)")
DIALOG = {"ShowMsg", "ShowMessage"}
WRAPPERS = {"QStringLiteral", "QString", "fromLatin1", "fromUtf8", "QLatin1String", "tr", "const", "int"}
ENGLISH = re.compile(r"(plainMessage|putBefore|criticalMessage|askPlain(OrCancel)?|q(Warning|Critical|Fatal|Info|Debug)|\w*Error|Check|Finding)$")
SENTENCE = re.compile(r"[A-Z][a-z']*( .*|\r\n.*)?[!?.](?<!\.\.\.)$", re.DOTALL)
SQL = re.compile(r"(select|insert|update|delete|create|drop|alter)\b.*(\bfrom\b|\binto\b|\bset\b|\btable\b)", re.I | re.DOTALL)


def tokens(source):
    """(kind, text) of each token, literals unescaped and neighbours joined."""
    found = []
    for match in TOKEN.finditer(source):
        kind = match.lastgroup
        if kind == "comment":
            continue
        if match["raw"] is not None:
            kind, text = "text", match["raw"]
        elif kind == "text":
            text = ESCAPE.sub(lambda m: {"r": "\r", "n": "\n", "t": "\t"}.get(m[1], m[1]), match["text"])
        else:
            text = match.group()
        if kind == "text" and found and found[-1][0] == "text":
            found[-1] = ("text", found[-1][1] + text)
        else:
            found.append((kind, text))
    return found


def faults(source, known, kept=()):
    """What is wrong with the messages of one source file, as a list of sentences."""
    wrong = []
    calls = []  # for each open bracket: the name before it, and whether its first argument is being read
    stream = tokens(source)
    for at, (kind, text) in enumerate(stream):
        if kind == "mark" and text in "({[":
            calls.append([stream[at - 1][1] if at and stream[at - 1][0] == "name" else "", True])
        elif kind == "mark" and text in ")}]" and calls:
            calls.pop()
        elif kind == "mark" and text == "," and calls:
            calls[-1][1] = False
        in_dialog = any(name in DIALOG and first for name, first in calls)
        if kind == "mark" and text in "+%" and in_dialog:
            wrong.append(f"a message is put together near {''.join(t for _, t in stream[max(at - 4, 0):at + 4])!r}")
        if kind == "name" and text in {"arg", "append", "asprintf"} and in_dialog:
            wrong.append("a message is put together with " + text)
        if kind != "text" or text in known or text in kept:
            continue
        if in_dialog:
            wrong.append(f"no Hindi for {text!r}")
        elif SENTENCE.match(text) and not SQL.match(text) and not any(ENGLISH.search(name) for name, _ in calls):
            wrong.append(f"no Hindi for {text!r}, and nothing says that it stays in English")
    return wrong


class FindsWhatIsMissing(unittest.TestCase):
    """The reader of sources itself."""

    KNOWN = {"Deleted.", "One line.\r\nTwo lines!"}

    def check(self, source, count):
        self.assertEqual(len(faults(source, self.KNOWN)), count, faults(source, self.KNOWN))

    def test_messages_with_hindi(self):
        self.check('ShowMsg(QStringLiteral("Deleted."));', 0)
        self.check('ShowMsg(QStringLiteral("One line.\\r\\n" "Two lines!"), 2);', 0)
        self.check('frmMsg().ShowMessage(u"Deleted."_s, 1, result);', 0)

    def test_messages_without(self):
        self.check('ShowMsg(QStringLiteral("gone"));', 1)
        self.check('if (ShowMsg(edit ? QStringLiteral("Deleted.") : QStringLiteral("Removed."), 2))', 1)
        self.check('box.ShowMessage(u"Deleted"_s, 1, result);', 1)
        self.check('ShowMsg(R"(Deleted!)");', 1)
        self.check('// ShowMsg("a comment");\nconst char* said = "Not \\"this\\" one!";', 1)

    def test_messages_put_together(self):
        self.check('ShowMsg(QStringLiteral("Deleted.") + name);', 1)
        self.check('ShowMsg(QStringLiteral("Deleted.").arg(name));', 1)

    def test_texts_that_stay_english(self):
        self.check('plainMessage(this, QStringLiteral("No backup file found!"));', 0)
        self.check('throw OperatorError(QStringLiteral("Bad name."));', 0)
        self.check('rs.Open(QStringLiteral("Select * from Jobs where name=?"));', 0)
        self.check('label->setText(QStringLiteral("Choose..."));', 0)
        self.assertEqual(faults('auto draft = "Dear all, come."', self.KNOWN, {"Dear all, come."}), [])


class EveryMessageHasHindi(unittest.TestCase):
    def test_sources(self):
        known, kept = read_messages(MESSAGES), read_kept(MESSAGES)
        wrong = []
        for path in sorted((ROOT / "src").rglob("*")):
            # The platform knows nothing of a shop: what it says are errors, in English. So are the check's findings.
            if path.suffix in {".cpp", ".h"} and "platform" not in path.parts and not path.name.startswith("ShopCheck"):
                wrong += [f"{path.relative_to(ROOT)}: {fault}" for fault in faults(path.read_text("utf-8"), known, kept)]
        self.assertFalse(wrong, f"\nAdd the Hindi to {MESSAGES.relative_to(ROOT)}:\n" + "\n".join(wrong))


if __name__ == "__main__":
    unittest.main()
