using System;
using System.Collections.Generic;
using System.Globalization;
using System.Linq;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Acis;

/// <summary>Writes the data of a modeler as text.</summary>
internal sealed class SatWriter : AcisTokens
{
    private readonly List<string> _written = [];
    private readonly bool _hasKeywords;
    private readonly bool _hasIndex;
    private List<AcisToken> _tokens = [];
    private int _at;

    private SatWriter(int version, int form)
    {
        _hasKeywords = form >= AcisVersions.Keywords;
        _hasIndex = version >= AcisVersions.History;
    }

    internal override bool IsEnd => _at >= _tokens.Count;

    internal override bool IsLink => Kind is AcisKind.Pointer or AcisKind.String
        || (_at == SatReader.IndexPlace && _hasIndex && Kind is AcisKind.Integer);

    internal override bool IsNumber => !IsEnd && (_tokens[_at].IsNumber
        || Kind is AcisKind.Position or AcisKind.Vector);

    internal override bool IsInteger => Kind is AcisKind.Integer or AcisKind.LongInteger;

    internal override bool IsOpen => Kind == AcisKind.Open;

    internal override bool IsClose => Kind == AcisKind.Close;

    internal override string Keyword => Kind == AcisKind.Keyword ? _tokens[_at].Text : "";

    private AcisKind? Kind => IsEnd ? null : _tokens[_at].Kind;

    /// <summary>Returns the lines of a text, which are not enciphered.</summary>
    internal static IEnumerable<string> Write(AcisFile file) => SatHeader.Write(file).Concat(
        Records(file, file.Version).Select(static record => string.Join(' ', record.Tokens) + " #"));

    /// <summary>Returns the records as a text has them.</summary>
    /// <param name="file">The data.</param>
    /// <param name="form">The version whose form the text has.</param>
    internal static IEnumerable<SatRecord> Records(AcisFile file, int form)
    {
        SatWriter writer = new(file.Version, form);
        AcisWalk walk = new(writer);
        foreach (AcisRecord record in file.Records)
        {
            writer._tokens = record.Tokens;
            writer.Restart();
            walk.Record(record.Type);
            yield return new SatRecord([record.Type, .. writer._written]);
        }
    }

    internal static string Written(double value)
    {
        string text = value.ToString("R", CultureInfo.InvariantCulture);
        return text.Contains('E', StringComparison.Ordinal) ? text.Replace('E', 'e') : text;
    }

    internal override void Restart()
    {
        _at = 0;
        _written.Clear();
    }

    internal override void Pass()
    {
        AcisToken token = _tokens[_at++];
        switch (token.Kind)
        {
            case AcisKind.Integer or AcisKind.LongInteger or AcisKind.Enumeration:
                _written.Add(token.Number.ToString(CultureInfo.InvariantCulture));
                break;
            case AcisKind.Pointer:
                _written.Add(FormattableString.Invariant($"${token.Number}"));
                break;
            case AcisKind.String:
                _written.Add(FormattableString.Invariant($"@{token.Text.Length} {token.Text}"));
                break;
            case AcisKind.Double:
                AddNumbers(token.Value, 1);
                break;
            case AcisKind.Parameters:
                AddNumbers(token.Value, 2);
                break;
            case AcisKind.Position or AcisKind.Vector:
                AddNumbers(token.Value, 3);
                break;
            case AcisKind.True:
                _written.Add(Kind == AcisKind.Double ? "F" : "T");
                break;
            case AcisKind.False:
                _written.Add("I");
                break;
            case AcisKind.Keyword:
                _written.Add(token.Text);
                break;
            default:
                _written.Add(token.Kind == AcisKind.Open ? "{" : "}");
                break;
        }
    }

    internal override double Double()
    {
        AcisToken token = _tokens[_at++];
        double value = token.Kind == AcisKind.Double ? token.Value.X : double.NaN;
        _written.Add(Written(value));
        return value;
    }

    internal override long Integer(AcisKind kind)
    {
        AcisToken token = _tokens[_at++];
        _written.Add(token.Number.ToString(CultureInfo.InvariantCulture));
        return token.Number;
    }

    internal override void Triple(AcisKind kind)
    {
        Vec3 value = _tokens[_at++].Value;
        foreach (double number in (ReadOnlySpan<double>)[value.X, value.Y, value.Z])
        {
            _written.Add(Written(number));
        }
    }

    internal override bool IsFlag(AcisFlag flag) => Kind is AcisKind.True or AcisKind.False;

    internal override bool Flag(AcisFlag flag)
    {
        bool value = _tokens[_at++].Kind == AcisKind.True;
        _written.Add(_hasKeywords ? value ? flag.Yes : flag.No : value ? "1" : "0");
        return value;
    }

    internal override bool IsEnumeration(string[] names) => Kind == AcisKind.Enumeration
        && _tokens[_at].Number >= 0 && _tokens[_at].Number < names.Length;

    internal override void Enumeration(string[] names) => _written.Add(names[_tokens[_at++].Number]);

    // The type of a value that no layout tells is told by its form.
    private void AddNumbers(Vec3 value, int count)
    {
        foreach (double number in ((ReadOnlySpan<double>)[value.X, value.Y, value.Z])[..count])
        {
            string text = Written(number);
            _written.Add(text.AsSpan().ContainsAny('.', 'e') ? text : text + ".0");
        }
    }
}
