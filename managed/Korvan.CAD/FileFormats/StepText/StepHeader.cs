using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>A record of the header section.</summary>
/// <param name="Keyword">Its name.</param>
/// <param name="Values">Its values.</param>
/// <param name="Start">Where it begins.</param>
/// <param name="End">The place behind its semicolon.</param>
internal sealed record StepHeaderRecord(string Keyword, object?[] Values, int Start, int End);

/// <summary>Reads what stands ahead of the data: ISO 10303-21, 8.</summary>
internal static class StepHeader
{
    // A few kilobytes are usual.
    private const int MostBytes = 1 << 24;

    /// <summary>Reads the header section.</summary>
    /// <param name="data">The file.</param>
    /// <param name="end">The place behind the section.</param>
    /// <exception cref="StepException">It is not there, or damaged.</exception>
    internal static List<StepHeaderRecord> Read(ReadOnlySpan<byte> data, out int end)
    {
        data = data[..Math.Min(data.Length, MostBytes)];
        int at = data.StartsWith("\uFEFF"u8) ? 3 : 0;
        at = Word(data, at, "ISO-10303-21");
        at = Word(data, at, "HEADER");
        List<StepHeaderRecord> records = [];
        while (true)
        {
            at = StepCharacters.Skip(data, at);
            StepParser parser = new(data, at);
            string keyword = parser.Keyword();
            if (keyword == "ENDSEC")
            {
                parser.Expect(';');
                end = parser.At;
                return records;
            }

            if (keyword.Length == 0)
            {
                throw new StepException(at, "the header section has no ENDSEC");
            }

            object?[] values = parser.List();
            parser.Expect(';');
            records.Add(new StepHeaderRecord(keyword, values, at, parser.At));
            at = parser.At;
        }
    }

    // Steps over a word and its semicolon.
    private static int Word(ReadOnlySpan<byte> data, int at, string word)
    {
        at = StepCharacters.Skip(data, at);
        StepParser parser = new(data, at);
        if (parser.Keyword() != word)
        {
            throw new StepException(at, $"'{word};' is missing");
        }

        parser.Expect(';');
        return parser.At;
    }
}
