using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Finds the names of the entities of a verified record: one, or those of the parts of a complex
/// instance.</summary>
internal static class StepEntityNames
{
    /// <summary>Returns the ranges of the names.</summary>
    /// <param name="record">The bytes of the record from its # sign to its semicolon.</param>
    /// <param name="isComplex">Whether it is a complex instance.</param>
    internal static List<Range> Of(ReadOnlySpan<byte> record, out bool isComplex)
    {
        List<Range> names = [];
        int at = StepCharacters.Skip(record, record.IndexOf((byte)'=') + 1);
        isComplex = at < record.Length && record[at] == '(';
        int outer = isComplex ? 1 : 0;
        int depth = 0;
        while (at < record.Length && record[at] != ';')
        {
            if (depth == outer && StepCharacters.IsKeyword(record[at]))
            {
                int start = at;
                while (at < record.Length && StepCharacters.IsKeyword(record[at]))
                {
                    at++;
                }

                names.Add(start..at);
            }
            else
            {
                depth += record[at] switch { (byte)'(' => 1, (byte)')' => -1, _ => 0 };
                at = Next(record, at);
            }
        }

        return names;
    }

    // A doubled apostrophe is read as the end of one string and the beginning of the next.
    private static int Next(ReadOnlySpan<byte> record, int at)
    {
        byte one = record[at];
        int length = one is (byte)'\'' or (byte)'"' ? record[(at + 1)..].IndexOf(one) + 1 : 0;
        return StepCharacters.Skip(record, at + length + 1);
    }
}
