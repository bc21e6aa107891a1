using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>
/// The text of a solid modeler as drawings keep it: records of tokens, each ended by a number sign, after a header of
/// three lines, which in the oldest versions is one. Drawings replace each printable character by the one as far from
/// the other end of ASCII (DXF reference, "3DSOLID").
/// </summary>
internal sealed class SatText
{
    private const int HeaderLines = 3;
    private const int CipherSum = 159;
    private const char RecordEnd = '#';
    private const string EndMark = "End-of-";

    private SatText(string[] header, List<SatRecord> records) => (Header, Records) = (header, records);

    /// <summary>Gets the lines before the records.</summary>
    internal string[] Header { get; }

    internal List<SatRecord> Records { get; }

    /// <summary>Gets the version of the format.</summary>
    internal int Version => VersionOf(Header[0]);

    /// <summary>Parses lines, deciphered or not. Null for what is no such text.</summary>
    internal static SatText? Parse(IReadOnlyList<string> lines)
    {
        if (lines.Count == 0)
        {
            return null;
        }

        bool isPlain = IsHeader(lines[0]);
        if (!isPlain && !IsHeader(Decipher(lines[0])))
        {
            return null;
        }

        string LineAt(int i) => isPlain ? lines[i] : Decipher(lines[i]);
        int count = VersionOf(LineAt(0)) < AcisVersions.Keywords ? 1 : HeaderLines;
        if (lines.Count <= count)
        {
            return null;
        }

        string[] header = new string[count];
        for (int i = 0; i < count; i++)
        {
            header[i] = LineAt(i);
        }

        var text = new StringBuilder();
        for (int i = count; i < lines.Count; i++)
        {
            text.Append(LineAt(i)).Append(' ');
        }

        List<SatRecord> records = Split(text.ToString());
        return records.Count > 0 ? new SatText(header, records) : null;
    }

    /// <summary>Reverts the substitution; a caret may have a blank after it, which is then a part of it.</summary>
    internal static string Decipher(string line)
    {
        var text = new StringBuilder(line.Length);
        for (int i = 0; i < line.Length; i++)
        {
            char c = line[i];
            text.Append(c is > ' ' and < '\x7f' ? (char)(CipherSum - c) : c);
            if (c == '^' && i + 1 < line.Length && line[i + 1] == ' ')
            {
                i++;
            }
        }

        return text.ToString();
    }

    /// <summary>Makes the substitution; a caret gets a blank, as interchange files have it.</summary>
    internal static string Encipher(string line)
    {
        var text = new StringBuilder(line.Length);
        foreach (char c in line)
        {
            char other = c is > ' ' and < '\x7f' ? (char)(CipherSum - c) : c;
            text.Append(other).Append(other == '^' ? " " : "");
        }

        return text.ToString();
    }

    // The version and three counts.
    private static bool IsHeader(string line)
    {
        string[] parts = line.Split(' ', StringSplitOptions.RemoveEmptyEntries);
        return parts.Length >= 3 && Array.TrueForAll(
            parts[..3], part => int.TryParse(part, NumberStyles.Integer, CultureInfo.InvariantCulture, out _));
    }

    private static int VersionOf(string line) => int.Parse(
        line.Split(' ', StringSplitOptions.RemoveEmptyEntries)[0], NumberStyles.Integer, CultureInfo.InvariantCulture);

    private static List<SatRecord> Split(string text)
    {
        List<SatRecord> records = [];
        List<string> tokens = [];
        int at = 0;
        while (Next(text, ref at) is string token)
        {
            if (token.Length == 1 && token[0] == RecordEnd)
            {
                if (tokens.Count > 0)
                {
                    records.Add(new SatRecord([.. tokens]));
                }

                tokens.Clear();
            }
            else if (tokens.Count == 0 && token.StartsWith(EndMark, StringComparison.Ordinal))
            {
                break;
            }
            else if (tokens.Count > 0 || !IsIndex(token))
            {
                tokens.Add(token);
            }
        }

        return records;
    }

    // Old texts begin each record with its negative index.
    private static bool IsIndex(string token) =>
        token[0] == '-' && int.TryParse(token, NumberStyles.Integer, CultureInfo.InvariantCulture, out _);

    private static string? Next(string text, ref int at)
    {
        while (at < text.Length && char.IsWhiteSpace(text[at]))
        {
            at++;
        }

        if (at == text.Length)
        {
            return null;
        }

        int start = at;
        while (at < text.Length && !char.IsWhiteSpace(text[at]))
        {
            at++;
        }

        if (text[start] != '@' || !int.TryParse(
            text.AsSpan(start + 1, at - start - 1), NumberStyles.None, CultureInfo.InvariantCulture, out int length)
            || length >= text.Length - at)
        {
            return text[start..at];
        }

        // A string of a stated length after its blank, which may have blanks and number signs.
        at += length + 1;
        return text[start..at];
    }
}
