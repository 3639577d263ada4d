"""The errors that vrk raises. Each carries the message, where it lies (file, line and
column; None where unknown), the functor that failed (a RunError's, as '"alias" (Name)')
and, as its text, the diagnostic that `vrk run` prints: "FILE:LINE:COLUMN: error: ..."
followed by the line and a caret under the column."""


class Error(Exception):
    """An error of the host's."""

    def __init__(self, message, file=None, line=None, column=None, functor=None, diagnostic=None):
        super().__init__(diagnostic if diagnostic is not None else message)
        self.message = message
        self.file = file
        self.line = line
        self.column = column
        self.functor = functor
        self.diagnostic = diagnostic if diagnostic is not None else message


class ScriptError(Error):
    """A script, a value given to it or a formula that is wrong: nothing ran."""


class RunError(Error):
    """A run, or a calculation, that failed."""
