"""vrk.Script: reading and verifying, parameters, runs, their log lines and errors, and
the outputs read back."""

import logging

import pytest

import vrk


def lines_of(script, **options):
    lines = []
    script.run(log=lambda level, line: lines.append((level, line)), **options)
    return lines


def test_script_errors_carry_their_place_and_the_command_lines_diagnostic(models, vrk_binary):
    with pytest.raises(vrk.ScriptError) as raised:
        vrk.Script(str(models / "bad-syntax.vrk"))
    error = raised.value
    assert (error.file, error.line) == (str(models / "bad-syntax.vrk"), 2)
    assert error.column > 1 and error.message
    status, _, stderr = vrk_binary("check", models / "bad-syntax.vrk")
    assert status == 2
    assert str(error) == stderr.rstrip("\n")
    assert str(error).splitlines()[1] == "    PrintValue value = loop.step label = ;"

    with pytest.raises(vrk.ScriptError) as raised:
        vrk.Script(str(models / "missing.vrk"))
    assert raised.value.line is None and "missing.vrk" in raised.value.message


def test_set_reads_values_as_the_command_line_does(models, vrk_binary):
    script = vrk.Script(str(models / "values.vrk"))
    script.set("loop.lastIterationStep", 2)
    script.set("rate.constant", 0.5)
    script.set("flag.constant", False)
    script.set("title.constant", '"city"')
    script.run(log=lambda level, line: None)
    assert script.output("flag.object") is False
    assert script.output("title.object") == "city"
    assert script.output("halved.result") == pytest.approx(0.5 / 2 - 3)
    assert [line for _, line in lines_of(script)][:2] == ["step 1", "step 2"]

    with pytest.raises(vrk.ScriptError) as raised:
        script.set("loop.lastIterationStep", -1)
    status, _, stderr = vrk_binary("run", models / "values.vrk", "--set",
                                   "loop.lastIterationStep=-1")
    assert status == 2 and str(raised.value) == stderr.rstrip("\n")
    assert (raised.value.file, raised.value.line) == ("--set", 1)

    for target, value, words in [("nobody.constant", 1, "no functor aliased \"nobody\""),
                                 ("loop.nothing", 1, "nothing"),
                                 ("halved", 1, "alias.port"),
                                 ("title.constant", "town", "Expecting")]:
        with pytest.raises(vrk.ScriptError, match=words):
            script.set(target, value)
    with pytest.raises(TypeError):
        script.set("rate.constant", [1, 2])


def test_outputs_give_python_values_of_every_primitive_type(models):
    script = vrk.Script(str(models / "values.vrk"))
    assert script.output("flag.object") is None
    script.run(log=lambda level, line: None)
    outputs = {name: script.output(name + ".object")
               for name in ["flag", "count", "positive", "rate", "years", "title", "label",
                            "file", "level"]}
    assert outputs == {"flag": True, "count": -3, "positive": 4, "rate": 0.25,
                       "years": {1, 3, 5}, "title": "town", "label": "built",
                       "file": "/tmp/vrk-python.txt", "level": ".debug"}
    assert type(outputs["count"]) is int and type(outputs["rate"]) is float
    assert script.output("halved.result") == pytest.approx(-2.875)
    assert script.output("loop.step") == 3
    with pytest.raises(vrk.ScriptError, match="no output \"nothing\""):
        script.output("rate.nothing")


def test_runs_agree_under_every_scheduler_and_level(models):
    script = vrk.Script(str(models / "values.vrk"))
    expected = [(".result", "step 1"), (".result", "step 2"), (".result", "step 3"),
                (".result", "halved -2.875")]
    for scheduler in ["sequential", "parallel", "auto"]:
        assert lines_of(script, scheduler=scheduler, processors=2) == expected
    verbose = lines_of(script, log_level=".info")
    assert len(verbose) > len(expected)
    assert [line for line in verbose if line[0] == ".result"] == expected
    assert lines_of(script, log_level=".warning") == []
    with pytest.raises(ValueError, match="not a scheduler"):
        script.run(scheduler="fastest")
    with pytest.raises(ValueError, match="not a log level"):
        script.run(log_level="loud")


def test_log_lines_go_to_python_logging_without_a_callback(models, caplog):
    script = vrk.Script(str(models / "values.vrk"))
    with caplog.at_level(logging.INFO, logger="vrk"):
        script.run()
    assert [record.getMessage() for record in caplog.records][-1] == "halved -2.875"
    assert {record.vrk_level for record in caplog.records} == {".result"}
    assert {record.levelno for record in caplog.records} == {logging.INFO}


def test_a_failed_run_raises_run_error_naming_the_functor(models, vrk_binary):
    script = vrk.Script(str(models / "fails.vrk"))
    lines = []
    with pytest.raises(vrk.RunError) as raised:
        script.run(log=lambda level, line: lines.append(line))
    error = raised.value
    assert lines == ["before"]
    assert error.functor == '"broken" (CalculateValue)'
    assert (error.line, error.column) == (3, 1)
    assert error.message.startswith('The run of "broken" (CalculateValue) failed: ')
    status, stdout, stderr = vrk_binary("run", models / "fails.vrk", "--log-level", ".result")
    assert (status, stdout) == (1, "before\n")
    assert str(error) == stderr.rstrip("\n")


def test_an_error_raised_by_the_log_callback_stops_the_run(models):
    script = vrk.Script(str(models / "forever.vrk"))

    def refuse(level, line):
        raise LookupError(line)

    with pytest.raises(LookupError, match="started"):
        script.run(log=refuse)


def test_relative_files_of_a_script_lie_beside_it(town):
    tmp_path = town.parent
    script = vrk.Script(str(town))
    script.set("years.lastIterationStep", 2)
    script.run(log_level=".warning")
    assert sorted(path.name for path in tmp_path.glob("state_*.tif")) == ["state_01.tif",
                                                                          "state_02.tif"]
    last = vrk.load_map(str(tmp_path / "state_02.tif")).to_array()
    assert (script.output("grown.result").to_array() == last).all()
