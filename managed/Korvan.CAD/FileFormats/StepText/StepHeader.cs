using System;
using System.Collections.Generic;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>A record of the header section.</summary>
/// <param name="Keyword">Its name.</param>
/// <param name="Values">Its values.</param>
/// <param name="Start">The offset of its keyword.</param>
/// <param name="End">The offset after its semicolon.</param>
internal sealed record StepHeaderRecord(string Keyword, object?[] Values, int Start, int End);

/// <summary>Reads the header section: ISO 10303-21, 8.</summary>
internal static class StepHeader
{
    // Headers typically have a few kilobytes.
    private const int MaxBytes = 1 << 24;

    /// <summary>Reads the header section.</summary>
    /// <param name="data">The file.</param>
    /// <param name="end">The offset after the section.</param>
    /// <exception cref="StepException">It is missing or damaged.</exception>
    internal static List<StepHeaderRecord> Read(ReadOnlySpan<byte> data, out int end)
    {
        data = data[..Math.Min(data.Length, MaxBytes)];
        int at = data.StartsWith("\uFEFF"u8) ? 3 : 0;
        at = SkipKeyword(data, at, "ISO-10303-21");
        at = SkipKeyword(data, at, "HEADER");
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
                throw new StepException(InvalidSection, at, "the header section has no ENDSEC");
            }

            object?[] values = parser.List();
            parser.Expect(';');
            records.Add(new StepHeaderRecord(keyword, values, at, parser.At));
            at = parser.At;
        }
    }

    // Skips a required keyword and its semicolon.
    private static int SkipKeyword(ReadOnlySpan<byte> data, int at, string keyword)
    {
        at = StepCharacters.Skip(data, at);
        StepParser parser = new(data, at);
        if (parser.Keyword() != keyword)
        {
            throw new StepException(MissingToken, at, $"'{keyword};' is missing");
        }

        parser.Expect(';');
        return parser.At;
    }
}
