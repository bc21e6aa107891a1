using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Finds the types of the values in the text of a modeler.</summary>
internal sealed class SatReader : AcisTokens
{
    /// <summary>Where texts have an index among the pointers: after the first of them.</summary>
    internal const int IndexPlace = 1;

    private readonly List<AcisToken> _found = [];
    private readonly bool _hasKeywords;
    private readonly bool _hasIndex;
    private string[] _tokens = [];
    private int _at;

    private SatReader(int version)
    {
        _hasKeywords = version >= AcisVersions.Keywords;
        _hasIndex = version >= AcisVersions.History;
    }

    internal override bool IsEnd => _at >= _tokens.Length;

    internal override bool IsLink => !IsEnd
        && (Token[0] is '$' or '@' || (_at == IndexPlace + 1 && _hasIndex && IsInteger));

    internal override bool IsNumber => TryNumber(Token, out _);

    internal override bool IsInteger => long.TryParse(
        Token, NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture, out _);

    internal override bool IsOpen => Token == "{";

    internal override bool IsClose => Token == "}";

    internal override string Keyword =>
        IsEnd || IsLink || IsNumber || IsOpen || IsClose ? "" : Token;

    private string Token => IsEnd ? "" : _tokens[_at];

    /// <summary>Returns what a text says; null for what is no such text.</summary>
    internal static AcisFile? Read(IReadOnlyList<string> lines)
    {
        if (SatText.Parse(lines) is not SatText text)
        {
            return null;
        }

        string[] counts = text.Header[0].Split(' ', StringSplitOptions.RemoveEmptyEntries);
        AcisFile file = new()
        {
            Version = text.Version,
            RootCount = CountAt(counts, 2),
            Flags = CountAt(counts, 3),
            Header = SatHeader.Read(text.Header),
        };
        SatReader reader = new(file.Version);
        AcisWalk walk = new(reader);
        foreach (SatRecord record in text.Records)
        {
            reader._tokens = record.Tokens;
            reader.Restart();
            walk.Record(record.Type);
            file.Records.Add(new AcisRecord(record.Type, [.. reader._found]));
        }

        return file;
    }

    internal override void Restart()
    {
        _at = 1;
        _found.Clear();
    }

    internal override void Pass()
    {
        string token = Token;
        _at++;
        _found.Add(token switch
        {
            "{" => new AcisToken(AcisKind.Open),
            "}" => new AcisToken(AcisKind.Close),
            ['$', ..] => new AcisToken(AcisKind.Pointer, IntegerOf(token.AsSpan(1))),
            ['@', ..] => new AcisToken(AcisKind.String, 0, default, StringOf(token)),
            "T" => new AcisToken(AcisKind.True),
            "F" => new AcisToken(IsNumber ? AcisKind.True : AcisKind.False),
            _ => Guess(token),
        });
    }

    internal override double Double()
    {
        _ = TryNumber(Token, out double value);
        _at++;
        _found.Add(AcisToken.Of(value));
        return value;
    }

    internal override long Integer(AcisKind kind)
    {
        long value = IntegerOf(Token);
        _at++;
        _found.Add(new AcisToken(kind, value));
        return value;
    }

    internal override void Triple(AcisKind kind)
    {
        Span<double> values = stackalloc double[3];
        foreach (ref double value in values)
        {
            _ = TryNumber(Token, out value);
            _at++;
        }

        _found.Add(new AcisToken(kind, 0, new Vec3(values[0], values[1], values[2])));
    }

    internal override bool IsFlag(AcisFlag flag) =>
        Token == flag.No || Token == flag.Yes || (!_hasKeywords && Token is "0" or "1");

    internal override bool Flag(AcisFlag flag)
    {
        bool value = Token == flag.Yes || Token == "1";
        _at++;
        _found.Add(new AcisToken(value ? AcisKind.True : AcisKind.False));
        return value;
    }

    internal override bool IsEnumeration(string[] names) => Array.IndexOf(names, Token) >= 0;

    internal override void Enumeration(string[] names)
    {
        _found.Add(new AcisToken(AcisKind.Enumeration, Array.IndexOf(names, Token)));
        _at++;
    }

    private static AcisToken Guess(string token)
    {
        if (Array.Find(AcisLayouts.Flags, flag => token == flag.No || token == flag.Yes) is AcisFlag found)
        {
            return new AcisToken(token == found.Yes ? AcisKind.True : AcisKind.False);
        }

        if (long.TryParse(token, NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture, out long integer))
        {
            return new AcisToken(integer is >= int.MinValue and <= int.MaxValue
                ? AcisKind.Integer : AcisKind.LongInteger, integer);
        }

        return TryNumber(token, out double number) ? AcisToken.Of(number)
            : new AcisToken(AcisKind.Keyword, 0, default, token);
    }

    private static bool TryNumber(string token, out double value)
    {
        value = 0;
        return token.Length > 0 && (char.IsAsciiDigit(token[0]) || token[0] is '-' or '+' or '.') && double.TryParse(
            token, NumberStyles.Float, CultureInfo.InvariantCulture, out value) && double.IsFinite(value);
    }

    private static long IntegerOf(ReadOnlySpan<char> text) => long.TryParse(
        text, NumberStyles.AllowLeadingSign, CultureInfo.InvariantCulture, out long value) ? value : -1;

    private static string StringOf(string token)
    {
        int blank = token.IndexOf(' ');
        return blank < 0 ? token : token[(blank + 1)..];
    }

    private static int CountAt(string[] counts, int index) =>
        index < counts.Length ? (int)IntegerOf(counts[index]) : 0;
}
