using System;
using System.Collections.Generic;
using System.Text;
using static Korvan.CAD.Input.LoadDefectCode;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>
/// Scans the records of a DATA section once, verifies their syntax and notes their offsets. Values are parsed later,
/// record by record, when they are asked for.
/// </summary>
internal sealed class StepScanner(byte[] data, KeywordTable keywords, int[] arities)
{
    // Reserving for as many records as there may be costs less than growing.
    private const int ShortRecordLength = 44;

    private const int MaxDamaged = 10_000;

    private readonly StepDefects _defects = new();
    private readonly List<(int Start, int End)> _damaged = [];
    private readonly StepIndex _index = new();
    private int _at;
    private int _recordStart;

    internal StepIndex Index => _index;

    internal StepDefects Defects => _defects;

    /// <summary>Gets the ranges that are left out because they are damaged.</summary>
    internal IReadOnlyList<(int Start, int End)> Damaged => _damaged;

    /// <summary>Gets whether the scan gave up because of too many defects.</summary>
    internal bool IsHopeless => _damaged.Count >= MaxDamaged;

    /// <summary>Gets the offset at which the scan ended: that of the first record beyond its limit, or of what is no
    /// record.</summary>
    internal int At => _at;

    /// <summary>Scans the records that begin in a range.</summary>
    internal void Scan(int start, int limit)
    {
        _at = start;
        _index.Reserve((limit - start) / ShortRecordLength);
        while (true)
        {
            try
            {
                Budget.Check();
                _recordStart = _at;
                _at = StepCharacters.Skip(data, _at);
                _recordStart = _at;
                if (_at >= limit || _at >= data.Length || data[_at] != '#')
                {
                    return;
                }

                Record();
            }
            catch (StepException e)
            {
                Recover(e);
            }
        }
    }

    private void Record()
    {
        int start = _at++;
        long id = Id(start);
        _at = StepCharacters.Skip(data, _at);
        Take('=');
        _at = StepCharacters.Skip(data, _at);
        int nameStart = _at;
        while (_at < data.Length && StepCharacters.IsKeyword(data[_at]))
        {
            _at++;
        }

        short keyword = -1;
        if (_at > nameStart)
        {
            ReadOnlySpan<byte> name = data.AsSpan(nameStart, _at - nameStart);
            keyword = keywords.Find(name);
            keyword = keyword >= 0 ? keyword : keywords.Find(Encoding.ASCII.GetBytes(Excerpt(name).ToUpperInvariant()));
            int count = Parameters();
            keyword = Verified(keyword, name, count, start, id);
        }
        else
        {
            Complex(start, id);
        }

        _at = StepCharacters.Skip(data, _at);
        Take(';');
        _index.Add(start, _at, id, keyword);
    }

    private long Id(int start)
    {
        long id = 0;
        const long maxPrefix = long.MaxValue / 10 - 1;
        while (_at < data.Length && StepCharacters.IsDigit(data[_at]))
        {
            if (id > maxPrefix)
            {
                throw new StepException(InvalidId, start, "the number of an instance is out of range");
            }

            id = (id * 10) + data[_at++] - '0';
        }

        return _at > start + 1 && id > 0
            ? id
            : throw new StepException(InvalidId, start, "an instance has no number above 0");
    }

    // Returns the keyword; -1 for an entity that cannot have instances.
    private short Verified(short keyword, ReadOnlySpan<byte> name, int count, int start, long id)
    {
        int arity = keyword < 0 ? -1 : arities[keyword];
        if (StepCharacters.IsUserDefined(name))
        {
            return -1;
        }

        if (arity < 0)
        {
            _defects.Add(keyword < 0
                ? new StepDefect(UnknownEntity, start, id, $"the schema has no entity {Excerpt(name)}")
                : new StepDefect(
                    AbstractEntity, start, id, $"{Excerpt(name)} is abstract and has no instances of its own"));
            return -1;
        }

        return count == arity
            ? keyword
            : throw new StepException(
                AttributeCount, start, $"{Excerpt(name)} has {arity} attributes, {count} are given");
    }

    // Partial records in parentheses: #1=(A(1)B(2));
    private void Complex(int start, long id)
    {
        Take('(');
        int parts = 0;
        while (true)
        {
            _at = StepCharacters.Skip(data, _at);
            int nameStart = _at;
            while (_at < data.Length && StepCharacters.IsKeyword(data[_at]))
            {
                _at++;
            }

            if (_at == nameStart)
            {
                break;
            }

            ReadOnlySpan<byte> name = data.AsSpan(nameStart, _at - nameStart);
            if (keywords.Find(name) < 0 && !StepCharacters.IsUserDefined(name))
            {
                _defects.Add(new StepDefect(UnknownEntity, start, id, $"the schema has no entity {Excerpt(name)}"));
            }

            Parameters();
            parts++;
        }

        if (parts == 0)
        {
            throw new StepException(MissingToken, _at, "the name of an entity is missing");
        }

        Take(')');
    }

    // Verifies a parameter list and returns the number of values on its outermost level.
    private int Parameters()
    {
        _at = StepCharacters.Skip(data, _at);
        Take('(');
        int depth = 1;
        int count = 0;
        bool afterOpen = true;
        while (true)
        {
            _at = StepCharacters.Skip(data, _at);
            if (afterOpen && _at < data.Length && data[_at] == ')')
            {
                _at++;
                depth--;
            }
            else
            {
                count += depth == 1 ? 1 : 0;
                if (SkipValue())
                {
                    afterOpen = true;
                    depth = depth < StepParser.MaxDepth
                        ? depth + 1
                        : throw new StepException(
                            NestedTooDeep, _at, $"lists are nested deeper than {StepParser.MaxDepth} levels");
                    continue;
                }
            }

            // After a value: closing parentheses, then a comma or the end.
            afterOpen = false;
            while (true)
            {
                if (depth == 0)
                {
                    return count;
                }

                _at = StepCharacters.Skip(data, _at);
                byte one = _at < data.Length ? data[_at] : throw Truncation();
                _at++;
                if (one == ',')
                {
                    break;
                }

                depth = one == ')'
                    ? depth - 1
                    : throw new StepException(MissingToken, _at - 1, "a ',' or ')' is missing");
            }
        }
    }

    // Skips a value. For a list or a typed value, only its opening parenthesis is skipped, and true is returned.
    private bool SkipValue()
    {
        byte one = _at < data.Length ? data[_at] : throw Truncation();
        switch (one)
        {
            case (byte)'(':
                _at++;
                return true;
            case (byte)'$' or (byte)'*':
                _at++;
                return false;
            case (byte)'\'':
                SkipString();
                return false;
            case (byte)'#':
                SkipReference();
                return false;
            case (byte)'.':
                SkipEnumeration();
                return false;
            case (byte)'"':
                SkipBinary();
                return false;
            default:
                if (StepCharacters.IsLetter(one) || one == '!')
                {
                    SkipKeyword();
                    _at = StepCharacters.Skip(data, _at);
                    Take('(');
                    return true;
                }

                SkipNumber();
                return false;
        }
    }

    private void SkipString()
    {
        int start = _at++;
        while (true)
        {
            while ((uint)_at < (uint)data.Length && data[_at] != '\'')
            {
                _at++;
            }

            if (++_at > data.Length)
            {
                throw new StepException(UnterminatedValue, start, "a string has no end");
            }

            if (_at == data.Length || data[_at] != '\'')
            {
                return;
            }

            _at++;
        }
    }

    private void SkipReference()
    {
        int start = ++_at;
        while (_at < data.Length && StepCharacters.IsDigit(data[_at]))
        {
            _at++;
        }

        if (_at == start)
        {
            throw new StepException(InvalidValue, start - 1, "a reference has no number");
        }
    }

    private void SkipEnumeration()
    {
        int start = _at++;
        SkipKeyword();
        if (_at >= data.Length || data[_at] != '.' || _at == start + 1)
        {
            throw new StepException(UnterminatedValue, start, "an enumeration item has no closing period");
        }

        _at++;
    }

    private void SkipBinary()
    {
        int length = data.AsSpan(_at + 1).IndexOf((byte)'"');
        _at = length >= 0
            ? _at + length + 2
            : throw new StepException(UnterminatedValue, _at, "a binary value has no end");
    }

    private void SkipKeyword()
    {
        while (_at < data.Length && StepCharacters.IsKeyword(data[_at]))
        {
            _at++;
        }
    }

    private void SkipNumber()
    {
        int start = _at;
        bool hasDigit = false;
        while (_at < data.Length && data[_at] is >= (byte)'0' and <= (byte)'9'
            or (byte)'.' or (byte)'+' or (byte)'-' or (byte)'E' or (byte)'e')
        {
            hasDigit |= StepCharacters.IsDigit(data[_at++]);
        }

        if (!hasDigit)
        {
            throw new StepException(InvalidValue, start, $"no value can begin with '{Excerpt(data.AsSpan(start, 1))}'");
        }
    }

    private void Take(char one)
    {
        if (_at >= data.Length)
        {
            throw Truncation();
        }

        if (data[_at] != one)
        {
            throw new StepException(MissingToken, _at, $"a '{one}' is missing");
        }

        _at++;
    }

    private StepException Truncation() => new(Truncated, data.Length, "the file ends within a record");

    // Resumes at the next line that begins a record, or at the end of the section.
    private void Recover(StepException error)
    {
        int from = Math.Min(error.Offset, data.Length);
        int start = _recordStart;
        _defects.Add(new StepDefect(error.Code, from, IdAt(start), error.Message));
        int at = Math.Max(_at, start + 1);
        // A comment without an end hides all that follows.
        at = data.AsSpan(from).StartsWith("/*"u8) ? data.Length : at;
        while (true)
        {
            int next = at < data.Length ? data.AsSpan(at).IndexOfAny("\r\n"u8) : -1;
            if (next < 0)
            {
                _at = data.Length;
                break;
            }

            at += next + 1;
            ReadOnlySpan<byte> line = data.AsSpan(at).TrimStart(" \t\r\n"u8);
            at = data.Length - line.Length;
            if (BeginsRecord(line) || line.StartsWith("ENDSEC"u8))
            {
                _at = at;
                break;
            }
        }

        _damaged.Add((start, _at));
        _at = IsHopeless ? data.Length : _at;
    }

    private static bool BeginsRecord(ReadOnlySpan<byte> line)
    {
        int digits = line.Length > 1 && line[0] == '#' ? line[1..].IndexOfAnyExceptInRange((byte)'0', (byte)'9') : 0;
        return digits > 0 && line[(1 + digits)..].TrimStart(" \t"u8).StartsWith("="u8);
    }

    private long IdAt(int start)
    {
        long id = 0;
        for (int at = start + 1; at < data.Length && StepCharacters.IsDigit(data[at]) && id < int.MaxValue; at++)
        {
            id = (id * 10) + data[at] - '0';
        }

        return id;
    }

    private static string Excerpt(ReadOnlySpan<byte> name)
    {
        const int maxLength = 60;
        return Encoding.Latin1.GetString(name.Length > maxLength ? name[..maxLength] : name);
    }
}
