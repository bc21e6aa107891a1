using System;
using System.Runtime.InteropServices;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// Signals that arrive while managed code runs. The library asks from time to time; Python's handlers run then, and
/// what they raise, such as KeyboardInterrupt, is the error of the call.
/// </summary>
internal static unsafe class Interruption
{
    // The name under which the library looks for the question.
    private const string QuestionName = "Korvan.IsInterrupted";
    private const string AnswerName = "Korvan.RaiseInterruption";

    private static delegate* unmanaged<int> _checkSignals;
    private static delegate* unmanaged<nint> _take;
    private static delegate* unmanaged<nint, void> _raise;
    private static Func<bool>? _answer;
    private static nint _raised;

    /// <summary>Finds what is needed in the interpreter. Where its symbols are not in sight, signals wait for the end
    /// of the call. The modules of a process share what the first of them installs.</summary>
    internal static void Install()
    {
        _answer = AppContext.GetData(AnswerName) as Func<bool>;
        if (_answer is not null)
        {
            return;
        }
        nint program = NativeLibrary.GetMainProgramHandle();
        if (NativeLibrary.TryGetExport(program, "PyErr_CheckSignals", out nint check)
            && NativeLibrary.TryGetExport(program, "PyErr_GetRaisedException", out nint take)
            && NativeLibrary.TryGetExport(program, "PyErr_SetRaisedException", out nint raise))
        {
            _checkSignals = (delegate* unmanaged<int>)check;
            _take = (delegate* unmanaged<nint>)take;
            _raise = (delegate* unmanaged<nint, void>)raise;
            _answer = Raise;
            AppContext.SetData(AnswerName, _answer);
            AppContext.SetData(QuestionName, (Func<bool>)IsInterrupted);
        }
    }

    /// <summary>Makes what a handler of signals has raised the error of the call.</summary>
    /// <returns>Whether there is such an exception.</returns>
    internal static bool TryRaise() => _answer?.Invoke() ?? false;

    private static bool Raise()
    {
        if (_raised == 0)
        {
            return false;
        }
        nint raised = _raised;
        _raised = 0;
        _raise(raised);
        return true;
    }

    // Called on the thread of the call, which holds the interpreter's lock.
    private static bool IsInterrupted()
    {
        if (_raised == 0 && _checkSignals() != 0)
        {
            _raised = _take();
        }
        return _raised != 0;
    }
}
