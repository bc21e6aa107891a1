using System;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Character classes, spaces and comments.</summary>
internal static class StepCharacters
{
    internal static bool IsDigit(byte one) => (uint)(one - '0') <= 9;

    internal static bool IsLetter(byte one) => (uint)((one | 0x20) - 'a') <= 'z' - 'a' || one == '_';

    internal static bool IsKeyword(byte one) => IsLetter(one) || IsDigit(one) || one is (byte)'-' or (byte)'!';

    /// <summary>Determines whether a name is that of an entity outside of the schema, which parties agree on (ISO
    /// 10303-21, 11.4).</summary>
    internal static bool IsUserDefined(ReadOnlySpan<byte> name) =>
        name.Length > 1 && name[0] == '!' && IsLetter(name[1]);

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
