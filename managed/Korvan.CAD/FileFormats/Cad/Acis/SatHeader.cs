using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>The lines before the records of a text: version and counts; product, modeler and date; the length of a unit
/// in millimetres, and tolerances.</summary>
internal static class SatHeader
{
    private const int Strings = 3;
    private const int Numbers = 3;

    /// <summary>Returns the values after the version and the counts.</summary>
    internal static List<AcisToken> Read(string[] lines)
    {
        if (lines.Length < Strings)
        {
            return [];
        }

        List<AcisToken> values = [];
        int at = 0;
        for (int i = 0; i < Strings; i++)
        {
            values.Add(new AcisToken(AcisKind.String, 0, default, StringAt(lines[1], ref at)));
        }

        string[] numbers = lines[2].Split(' ', StringSplitOptions.RemoveEmptyEntries);
        double[] defaults = [1, 1e-6, 1e-10];
        for (int i = 0; i < Numbers; i++)
        {
            values.Add(AcisToken.Of(i < numbers.Length && double.TryParse(
                numbers[i], NumberStyles.Float, CultureInfo.InvariantCulture, out double value)
                    ? value : defaults[i]));
        }

        return values;
    }

    /// <summary>Returns the lines.</summary>
    internal static IEnumerable<string> Write(AcisFile file)
    {
        yield return FormattableString.Invariant(
            $"{file.Version} {file.Records.Count} {file.RootCount} {file.Flags} ");
        if (file.Version < AcisVersions.Keywords)
        {
            yield break;
        }

        StringBuilder text = new();
        foreach (AcisToken value in file.Header.Where(static value => value.Kind == AcisKind.String))
        {
            text.Append(CultureInfo.InvariantCulture, $"{value.Text.Length} {value.Text} ");
        }

        yield return text.ToString();
        yield return string.Concat(file.Header.Where(static value => value.Kind == AcisKind.Double).Select(
            static value => SatWriter.Written(value.Value.X) + " "));
    }

    // A string after its length, which a commercial at may precede.
    private static string StringAt(string line, ref int at)
    {
        while (at < line.Length && line[at] is ' ' or '@')
        {
            at++;
        }

        int blank = at < line.Length ? line.IndexOf(' ', at) : -1;
        if (blank < 0 || !int.TryParse(
            line.AsSpan(at, blank - at), NumberStyles.None, CultureInfo.InvariantCulture, out int length))
        {
            (string rest, at) = (line[Math.Min(at, line.Length)..], line.Length);
            return rest == "0" ? "" : rest;
        }

        int start = blank + 1;
        int end = Math.Min(line.Length, start + Math.Min(length, line.Length));
        at = end;
        return line[start..end];
    }
}
