using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Parses the values of one record: a reference becomes a <see cref="StepRef"/>, a list an array.</summary>
internal ref struct StepParser
{
    /// <summary>The maximum depth of nested lists and typed values.</summary>
    internal const int MaxDepth = 64;

    private readonly ReadOnlySpan<byte> _data;
    private int _at;

    internal StepParser(ReadOnlySpan<byte> data, int at)
    {
        _data = data;
        _at = at;
    }

    internal readonly int At => _at;

    internal readonly ReadOnlySpan<byte> Data => _data;

    /// <summary>Parses a keyword and returns it in upper case; empty if there is none.</summary>
    internal string Keyword()
    {
        Skip();
        int start = _at;
        while (_at < _data.Length && StepCharacters.IsKeyword(_data[_at]))
        {
            _at++;
        }

        return Encoding.ASCII.GetString(_data[start.._at]).ToUpperInvariant();
    }

    /// <summary>Skips a required character.</summary>
    internal void Expect(char one)
    {
        Skip();
        if (_at >= _data.Length || _data[_at] != one)
        {
            throw new StepException(MissingToken, _at, $"a '{one}' is missing");
        }

        _at++;
    }

    /// <summary>Parses a list in parentheses.</summary>
    internal object?[] List(int depth = 0)
    {
        Expect('(');
        if (depth > MaxDepth)
        {
            throw new StepException(NestedTooDeep, _at, $"lists are nested deeper than {MaxDepth} levels");
        }

        Skip();
        if (_at < _data.Length && _data[_at] == ')')
        {
            _at++;
            return [];
        }

        List<object?> values = [];
        while (true)
        {
            values.Add(Value(depth + 1));
            Skip();
            if (_at < _data.Length && _data[_at] == ',')
            {
                _at++;
                continue;
            }

            Expect(')');
            return [.. values];
        }
    }

    /// <summary>Parses a value.</summary>
    internal object? Value(int depth = 0)
    {
        Skip();
        byte one = _at < _data.Length ? _data[_at] : (byte)0;
        switch (one)
        {
            case (byte)'$':
                _at++;
                return null;
            case (byte)'*':
                _at++;
                return StepOmitted.Value;
            case (byte)'\'':
                return String();
            case (byte)'#':
                return Reference();
            case (byte)'.':
                return Enumeration();
            case (byte)'"':
                return Binary();
            case (byte)'(':
                return List(depth);
            default:
                return StepCharacters.IsLetter(one) || one == '!' ? Typed(depth) : Number();
        }
    }

    private void Skip() => _at = StepCharacters.Skip(_data, _at);

    private string String()
    {
        int start = ++_at;
        while (true)
        {
            int length = _data[_at..].IndexOf((byte)'\'');
            if (length < 0)
            {
                throw new StepException(UnterminatedValue, start - 1, "a string has no end");
            }

            _at += length + 1;
            if (_at >= _data.Length || _data[_at] != '\'')
            {
                return StepStrings.Decode(_data[start..(_at - 1)], start);
            }

            _at++;
        }
    }

    private StepRef Reference()
    {
        int start = ++_at;
        while (_at < _data.Length && StepCharacters.IsDigit(_data[_at]))
        {
            _at++;
        }

        return long.TryParse(_data[start.._at], NumberStyles.None, CultureInfo.InvariantCulture, out long id)
            ? new StepRef(id)
            : throw new StepException(InvalidValue, start - 1, "a reference has no number, or one out of range");
    }

    private StepEnum Enumeration()
    {
        int start = _at + 1;
        int end = start;
        while (end < _data.Length && StepCharacters.IsKeyword(_data[end]))
        {
            end++;
        }

        if (end == start || end >= _data.Length || _data[end] != '.')
        {
            throw new StepException(UnterminatedValue, _at, "an enumeration item has no closing period");
        }

        _at = end + 1;
        return (end - start == 1 ? TruthValue(_data[start]) : null)
            ?? new StepEnum(Encoding.ASCII.GetString(_data[start..end]).ToUpperInvariant());
    }

    private static StepEnum? TruthValue(byte one) => one switch
    {
        (byte)'T' or (byte)'t' => StepEnum.True,
        (byte)'F' or (byte)'f' => StepEnum.False,
        (byte)'U' or (byte)'u' => StepEnum.Unknown,
        _ => null,
    };

    // The first digit is the number of unused bits that follow it.
    private StepBinary Binary()
    {
        int start = _at + 1;
        int length = _data[start..].IndexOf((byte)'"');
        if (length < 1 || _data[start] is < (byte)'0' or > (byte)'3')
        {
            throw new StepException(InvalidValue, _at, "a binary value has no end, or no count of unused bits");
        }

        string digits = Encoding.ASCII.GetString(_data.Slice(start + 1, length - 1));
        try
        {
            _at = start + length + 1;
            byte[] bytes = Convert.FromHexString(digits.Length % 2 == 0 ? digits : "0" + digits);
            return new StepBinary(bytes, Math.Max(0, (digits.Length * 4) - (_data[start] - '0')));
        }
        catch (FormatException)
        {
            throw new StepException(InvalidValue, start, "a binary value has digits that are not hexadecimal");
        }
    }

    private StepTyped Typed(int depth)
    {
        int start = _at;
        string keyword = Keyword();
        object?[] values = List(depth);
        return values.Length == 1
            ? new StepTyped(keyword, values[0])
            : throw new StepException(InvalidValue, start, $"{keyword} takes one value, not {values.Length}");
    }

    private object Number()
    {
        int start = _at;
        bool isReal = false;
        while (_at < _data.Length && _data[_at] is not ((byte)',' or (byte)')' or (byte)'/' or <= (byte)' '))
        {
            isReal |= _data[_at] is (byte)'.' or (byte)'E' or (byte)'e';
            _at++;
        }

        ReadOnlySpan<byte> digits = _data[start.._at];
        const NumberStyles wholeStyle = NumberStyles.AllowLeadingSign;
        if (!isReal && long.TryParse(digits, wholeStyle, CultureInfo.InvariantCulture, out long whole))
        {
            return whole;
        }

        const NumberStyles realStyle = wholeStyle | NumberStyles.AllowDecimalPoint | NumberStyles.AllowExponent;
        return double.TryParse(digits, realStyle, CultureInfo.InvariantCulture, out double real)
            && double.IsFinite(real)
            ? real
            : throw new StepException(InvalidValue, start, $"'{Excerpt(digits)}' is no value");
    }

    private static string Excerpt(ReadOnlySpan<byte> data)
    {
        const int maxLength = 20;
        return Encoding.Latin1.GetString(data.Length > maxLength ? data[..maxLength] : data);
    }
}
