"""Where the log lines of a run go when Script.run is given no `log`: the "vrk" logger
of Python's logging, at the level nearest to the line's (.result and .info at INFO)."""

import logging

LOGGER = logging.getLogger("vrk")

LEVELS = {
    ".unconditional": logging.WARNING,
    ".error": logging.ERROR,
    ".warning": logging.WARNING,
    ".result": logging.INFO,
    ".info": logging.INFO,
    ".info2": logging.DEBUG,
    ".debug": logging.DEBUG,
    ".debug2": logging.DEBUG,
    ".trace": logging.DEBUG,
}


def emit(level, line):
    """Logs one line of a run; `level` is its keyword (".result" ...), kept in the
    record as `vrk_level`."""
    LOGGER.log(LEVELS.get(level, logging.INFO), "%s", line, extra={"vrk_level": level})
