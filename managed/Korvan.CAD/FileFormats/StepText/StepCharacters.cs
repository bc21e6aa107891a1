using System;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Character classes, spaces and comments.</summary>
internal static class StepCharacters
{
    internal static bool IsDigit(byte one) => (uint)(one - '0') <= 9;

    internal static bool IsLetter(byte one) => (uint)((one | 0x20) - 'a') <= 'z' - 'a' || one == '_';

    internal static bool IsKeyword(byte one) => IsLetter(one) || IsDigit(one) || one is (byte)'-' or (byte)'!';

    internal static bool IsSpace(byte one) => one <= ' ';

    /// <summary>Returns the offset of the next token, after spaces and comments; the length at the end.</summary>
    /// <exception cref="StepException">A comment has no end.</exception>
    internal static int Skip(ReadOnlySpan<byte> data, int at)
    {
        while ((uint)at < (uint)data.Length)
        {
            byte one = data[at];
            if (IsSpace(one))
            {
                at++;
            }
            else if (one == '/' && at + 1 < data.Length && data[at + 1] == '*')
            {
                int end = data[(at + 2)..].IndexOf("*/"u8);
                at = end >= 0 ? at + end + 4 : throw new StepException(UnterminatedValue, at, "a comment has no end");
            }
            else
            {
                break;
            }
        }

        return at;
    }
}
