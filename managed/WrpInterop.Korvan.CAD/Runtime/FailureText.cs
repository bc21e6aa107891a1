using System;
using System.Diagnostics;
using System.Text;
using Korvan.WrpGen.Naming;

namespace Korvan.WrpGen.Interop;

/// <summary>
/// What an exception says, to somebody who knows arguments and properties by their Python names. The framework adds
/// an argument's managed name and its value behind the message; in a setter the name is no more than "value".
/// </summary>
internal static class FailureText
{
    private const string SetterArgument = "value";
    private const string NoValue = "Value cannot be null.";

    // How the names of exported setters begin.
    private static readonly string[] SetterPrefixes = ["set_", "setsa_"];

    public static string Of(Exception exception)
    {
        // What Python raised has lines of its own.
        bool isPython = exception is PythonException || exception.InnerException is PythonException
            || exception.Message.Contains("Traceback (most recent call last)", StringComparison.Ordinal);
        string text = Told(exception);
        return isPython ? text : WithoutActive(text);
    }

    private static string Told(Exception exception)
    {
        if (exception is not ArgumentException argument)
        {
            return WithoutLoneSurrogates(exception.Message);
        }
        string text = WithoutTails(argument);
        string? name = argument.ParamName;
        if (string.IsNullOrEmpty(name) || Array.Exists(name.ToCharArray(), c => !char.IsAsciiLetterOrDigit(c)))
        {
            return WithoutLoneSurrogates(text);
        }
        string known = (name == SetterArgument ? PropertyOf(exception) : null) ?? PythonName.Lower(name);
        return WithoutLoneSurrogates(
            text == NoValue ? $"{known} must not be None."
            : text.StartsWith($"{name} (", StringComparison.Ordinal) ? known + text[name.Length..]
            : HasWord(text, known) ? text
            : $"{known}: {text}");
    }

    private static string WithoutTails(ArgumentException argument)
    {
        string text = argument.Message;
        if (argument is ArgumentOutOfRangeException { ActualValue: { } actual })
        {
            text = Before(text, $"{Environment.NewLine}Actual value was {actual}.");
        }
        return Before(text, $" (Parameter '{argument.ParamName}')");
    }

    private static string Before(string text, string tail) =>
        text.EndsWith(tail, StringComparison.Ordinal) ? text[..^tail.Length] : text;

    // The outermost frame of an exception is the exported function that caught it.
    private static string? PropertyOf(Exception exception)
    {
        var trace = new StackTrace(exception, fNeedFileInfo: false);
        string name = trace.GetFrame(trace.FrameCount - 1)?.GetMethod()?.Name ?? "";
        string? prefix = Array.Find(SetterPrefixes, one => name.StartsWith(one, StringComparison.Ordinal));
        return prefix is null ? null : PythonName.Lower(name[prefix.Length..]);
    }

    private static bool HasWord(string text, string word)
    {
        for (int at = text.IndexOf(word, StringComparison.Ordinal); at >= 0;
            at = text.IndexOf(word, at + 1, StringComparison.Ordinal))
        {
            if (!IsLetter(text, at - 1) && !IsLetter(text, at + word.Length))
            {
                return true;
            }
        }
        return false;
    }

    private static bool IsLetter(string text, int at) =>
        at >= 0 && at < text.Length && (char.IsLetterOrDigit(text[at]) || text[at] == '_');

    // Half a pair can't be decoded: one would take the whole message along.
    private static string WithoutLoneSurrogates(string text)
    {
        StringBuilder? escaped = null;
        for (int at = 0; at < text.Length; at++)
        {
            if (!char.IsSurrogate(text[at]))
            {
                escaped?.Append(text[at]);
            }
            else if (at + 1 < text.Length && char.IsSurrogatePair(text[at], text[at + 1]))
            {
                escaped?.Append(text, at, 2);
                at++;
            }
            else
            {
                escaped ??= new StringBuilder(text, 0, at, text.Length + 8);
                escaped.Append($"\\u{(int)text[at]:x4}");
            }
        }
        return escaped?.ToString() ?? text;
    }

    // Names and values of files are part of messages: what would act on a terminal, a log or a web page is escaped.
    private static string WithoutActive(string text)
    {
        StringBuilder? escaped = null;
        for (int at = 0; at < text.Length; at++)
        {
            if (IsActive(text, at))
            {
                escaped ??= new StringBuilder(text, 0, at, text.Length + 8);
                escaped.Append(text[at] < 256 ? $"\\x{(int)text[at]:x2}" : $"\\u{(int)text[at]:x4}");
            }
            else
            {
                escaped?.Append(text[at]);
            }
        }
        return escaped?.ToString() ?? text;
    }

    private static bool IsActive(string text, int at) => text[at] switch
    {
        '<' => at + 1 < text.Length && (char.IsAsciiLetter(text[at + 1]) || text[at + 1] is '/' or '!' or '?'),
        '\u2028' or '\u2029' or (>= '\u202A' and <= '\u202E') or (>= '\u2066' and <= '\u2069') => true,
        char c => char.IsControl(c),
    };
}
