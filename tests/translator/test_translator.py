"""ampl, the free translator: stubs to the byte, what it refuses and where, and solvers that do well or badly."""

import os
import signal
import subprocess
import sys
import time

import pytest

AMPL = os.environ["AMPL"]


@pytest.fixture
def ampl(tmp_path, monkeypatch):
    """Runs the program on a text, with a folder of its own for temporary files that must be empty afterwards."""
    monkeypatch.chdir(tmp_path)
    (tmp_path / "temporary").mkdir()
    monkeypatch.setenv("TMPDIR", str(tmp_path / "temporary"))
    # A build under AddressSanitizer would else end with an exit code of its own where others end with a signal.
    for options in ("ASAN_OPTIONS", "TSAN_OPTIONS"):
        monkeypatch.setenv(options, os.environ.get(options, "") + ":handle_segv=0")

    def run(text, *arguments):
        (tmp_path / "text.run").write_text(text)
        done = subprocess.run([AMPL, *arguments, "text.run"], stdout=subprocess.PIPE, text=True, timeout=120)
        assert os.listdir(tmp_path / "temporary") == []
        return done.returncode, done.stdout

    return run


MODEL = """
set P; param low default -1.5;
var y {P} integer >= low, <= 7;
var x {P, 1..2} >= 0;
var z binary; var free;
maximize gain: 12.75 + sum {p in P} y[p] - 0.1 * x['a b', 2] + 1e20 * z;
minimize other: free + 5;
s.t. range {t in 1..2: t > 1}: 1 <= sum {p in P} x[p, t] <= 8;
subject to balance: x['c', 1] + y['c'] = x['c', 2] + y['c'] + 0.3;
at_least: 3 * free - 2 >= z;
none: -Infinity <= free <= Infinity;
most {p in P}: y[p] <= 4 * z;
"""

STUB = """\
g3 1 1 0\t# problem stub
 7 6 1 1 1\t# vars, constraints, objectives, ranges, eqns
 0 0\t# nonlinear constraints, objectives
 0 0\t# network constraints: nonlinear, linear
 0 0 0\t# nonlinear vars in constraints, objectives, both
 0 0 0 1\t# linear network variables; functions; arith, flags
 1 2 0 0 0\t# discrete variables: binary, integer, nonlinear (b,c,o)
 11 4\t# nonzeros in Jacobian, gradients
 11 10\t# max name lengths: constraints, variables
 0 0 0 0 0\t# common exprs: b,c,o,c1,o1
C0 n0 C1 n0 C2 n0 C3 n0 C4 n0 C5 n0
O0 1 n12.75
r 0_1_8 4_0.3 2_2 3 1_0 1_0
b 2_0 2_0 2_0 3 0_0_1 0_-1.5_7 0_-1.5_7
k6 1 3 4 6 9 10
J0_2 0_1 1_1 J1_2 1_-1 2_1 J2_2 3_3 4_-1 J3_1 3_1 J4_2 4_-4 5_1 J5_2 4_-4 6_1
G0_4 0_-0.1 4_1e+20 5_1 6_1
"""


def test_a_stub_has_every_kind_of_column_row_and_number(ampl, tmp_path):
    (tmp_path / "part.dat").write_text("set P := 'a b' c;\n")
    command_file = f"reset;\nmodel;\n{MODEL}data;\ninclude 'part.dat';\noption auxfiles 'cr';\n"
    assert ampl(command_file, "-P", "-ogstub") == (0, "")
    head, body = STUB.split("C0 ", 1)
    body = body.replace("O0 1", "O0_1").replace(" ", "\n").replace("_", " ")
    assert (tmp_path / "stub.nl").read_text() == head + "C0\n" + body
    assert (tmp_path / "stub.row").read_text().split("\n") == [
        "range[2]", "balance", "at_least", "none", "most['a b']", "most['c']", "gain", ""]  # fmt: skip
    assert (tmp_path / "stub.col").read_text().split("\n") == [
        "x['a b',2]", "x['c',2]", "x['c',1]", "free", "z", "y['a b']", "y['c']", ""]  # fmt: skip

    assert ampl("var x; minimize o: x;", "-ogstub") == (0, "")
    assert not (tmp_path / "stub.col").exists()  # the names of the stub before would be wrong here


@pytest.mark.parametrize(
    "text, said",
    [
        ("var x;\nminimize o: x\n", "text.run:2: the statement that begins here has no semicolon"),
        ("param p symbolic :=\n 'abc;\n';", "text.run:2: the string that begins in this line isn't closed"),
        ("var x; /* never\nends", "text.run:1: the comment"),
        ("var x;\ninclude 'nowhere.mod';", "text.run:2: 'nowhere.mod': there is no such file"),
        ("include text.run;", "does one name itself?"),
        ("var x;\n\nlet x := 3;", "text.run:3: 'let' is not among"),
        ("for {i in 1..3} { display i; }", "text.run:1: 'for' is not among"),
        ("problem two: x;", "text.run:1: 'problem' is not among"),
        ("reset data;", "text.run:1: only 'reset;' and 'reset options;'"),
        ("option a b c;", "text.run:1: values of options can only be joined"),
        ("var x;\nvar y;\nminimize o: x\n * y;", "text.run:4: multiplication of linear forms not allowed\nContext:"),
        ("include 'part.mod';\nminimize o: x + z;", "text.run:2: z not defined"),
        ("include 'part.mod'; minimize o: x;\ndata;\nparam q := 1;\nparam r := 2;", "text.run:4: r not a parameter"),
        ("include 'part.mod';\nminimize o: q * x;", "text.run:2: no value for q"),
        ("model wrong.mod;", "wrong.mod:3: syntax error in expression"),
        ("data; include part.dat;", "part.dat:2: there is data, but no model"),
        ("model part.mod;\ndata;\nparam q 'a b';", "text.run:3: q requires numeric data"),
        ("model part.mod; data part.dat; s.t. c: x >= 0; check q > 2;", "text.run:1: check failed"),
        pytest.param(f"param p := {'(' * 500000}1{')' * 500000};", "the translator broke down with signal", id="deep"),
        ("param p := 1;", "the model has no variable"),
    ],
)
def test_what_is_wrong_is_told_with_file_and_line_and_leaves_no_stub(ampl, tmp_path, text, said):
    (tmp_path / "part.mod").write_text("param q;\nvar x >= 0;\n")
    (tmp_path / "wrong.mod").write_text("param q;\n\nvar x >= ;\n")
    (tmp_path / "part.dat").write_text("# one line\nparam q := 1;\n")
    (tmp_path / "stub.nl").write_text("of an earlier run")
    code, output = ampl(text, "-ogstub")
    assert (code, said in output) == (1, True), output
    assert not (tmp_path / "stub.nl").exists()


# Answers with the values that the option `answer` gives, one duals' line for each row.
SOLVER = """#!{python}
import os, sys
stub, flag = sys.argv[1:]
sizes = open(stub + ".nl").readlines()[1].split()
values = os.environ["answer"].split()
lines = ["solver: " + os.environ["word"] + " " + flag, "", "Options", "3", "1", "1", "0", sizes[1], sizes[1], sizes[0]]
open(stub + ".sol", "w").write("\\n".join(lines + [sizes[0]] + ["2"] * int(sizes[1]) + values + ["objno 0 0", ""]))
sys.exit(1)  # the answer counts
"""


def test_displays_show_the_solution_of_the_solve_before_them(ampl, tmp_path):
    solver = tmp_path / "solver"
    solver.write_text(SOLVER.format(python=sys.executable))
    solver.chmod(0o755)
    text = """option solver '/nowhere/solver', word 'first', answer '3 1';
    set I := {'a', 'b c'}; param c {I} default 2; var x {I} >= 0;
    minimize cost: sum {i in I} c[i] * x[i] + 10;
    room: x['a'] <= 4;
    printf "before\\n";
    solve; printf "%g\\n", cost;
    option solver './solver'; solve; option word 'second';
    display x, cost, room.dual, x['a'].dual; printf "no line feed";
    subject to more: x['b c'] <= 1;
    option answer '4 0.25'; solve;
    printf {i in I} "%s %g\\n", i, x[i];
    option answer 'nonsense'; solve; display x['a'];
    reset options; let x := 1;"""
    code, output = ampl(text)
    assert code == 1
    assert output.split("\n") == [
        "before",
        "text.run:6: solve failed: there is no program '/nowhere/solver'",
        "10",
        "solver: first -AMPL",
        "x[a].val = 3",
        "x['b c'].val = 1",
        "cost.val = 18",
        "room.dual = 2",
        "x[a].dual = 0",
        "no line feedsolver: second -AMPL",
        "a 4",
        "b c 0.25",
        "text.run:12: solve failed: './solver' ended with exit code 1; the solution is damaged, "
        "line 14: a number is expected here",
        "x[a].val = 4",
        "text.run:13: 'let' is not among the statements that this translator takes; 'ampl --help' lists them",
        "",
    ]


@pytest.mark.parametrize(
    "script, said",
    [
        ("kill -9 $$", "was ended by signal 9; no solution was written"),
        ("mkfifo $1.sol; sleep 60 &", "no solution was written"),
        ("mkdir $1.sol", "no solution was written"),
        ("cat; head -c 20000000 /dev/zero | tr '\\0' '\\n'; echo >$1.sol", "the solution is damaged"),
    ],
)
def test_a_solver_that_goes_wrong_is_told_and_the_rest_goes_on(ampl, tmp_path, script, said):
    (tmp_path / "bad").write_text(f"#!/bin/sh\nexec 2>/dev/null\n{script}\n".replace("sleep 60 &", "sleep 60 >/dev/null &"))
    (tmp_path / "bad").chmod(0o755)
    code, output = ampl("option solver './bad'; var x; minimize o: x; solve; printf 'on\\n';", "-ogstub")
    assert (code, said in output, output[-4:]) == (0, True, "\non\n")
    assert (tmp_path / "stub.nl").exists()


def test_a_request_to_end_is_heard_while_a_solver_runs(tmp_path, monkeypatch):
    monkeypatch.setenv("TMPDIR", str(tmp_path))
    (tmp_path / "slow").write_text("#!/bin/sh\necho begun\nexec sleep 60\n")
    (tmp_path / "slow").chmod(0o755)
    (tmp_path / "text.run").write_text(f"option solver '{tmp_path}/slow'; var x; minimize o: x; solve;")
    with subprocess.Popen([AMPL, tmp_path / "text.run"], stdout=subprocess.PIPE) as process:
        assert process.stdout.readline() == b"begun\n"
        process.send_signal(signal.SIGTERM)
        begin = time.monotonic()
        assert process.stdout.read() == b""  # the solver has ended too
        assert time.monotonic() - begin < 30
    assert process.returncode == 128 + signal.SIGTERM
    assert sorted(os.listdir(tmp_path)) == ["slow", "text.run"]
