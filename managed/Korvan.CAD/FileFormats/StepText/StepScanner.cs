using System;
using System.Collections.Generic;
using System.Text;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>
/// Goes once over the records of a data section, verifies their syntax and notes where they are. Values are not
/// made; that is done record by record when they are asked for.
/// </summary>
internal sealed class StepScanner(byte[] data, KeywordTable keywords, int[] arities)
{
    // Room for as many as there may be, taken at once, costs less than room that grows.
    private const int BytesOfShortRecord = 44;

    private const int MostDamaged = 10_000;

    private readonly StepErrors _errors = new();
    private readonly List<(int Start, int End)> _damaged = [];
    private readonly StepIndex _index = new();
    private int _at;
    private int _recordStart;

    internal StepIndex Index => _index;

    internal StepErrors Errors => _errors;

    /// <summary>Gets the places of what was left out because of damage.</summary>
    internal IReadOnlyList<(int Start, int End)> Damaged => _damaged;

    /// <summary>Gets whether so much is damaged that the scan gave up.</summary>
    internal bool IsHopeless => _damaged.Count >= MostDamaged;

    /// <summary>Gets where the scan ended: at the first record that it left to others, or what is no record.</summary>
    internal int At => _at;

    /// <summary>Scans from the first record to the last that begins before a limit.</summary>
    internal void Scan(int start, int limit)
    {
        _at = start;
        _index.Reserve((limit - start) / BytesOfShortRecord);
        while (true)
        {
            try
            {
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
        int wordStart = _at;
        while (_at < data.Length && StepCharacters.IsKeyword(data[_at]))
        {
            _at++;
        }

        short keyword = -1;
        if (_at > wordStart)
        {
            ReadOnlySpan<byte> word = data.AsSpan(wordStart, _at - wordStart);
            keyword = keywords.Find(word);
            keyword = keyword >= 0 ? keyword : keywords.Find(Encoding.ASCII.GetBytes(Text(word).ToUpperInvariant()));
            int count = Parameters();
            keyword = Verified(keyword, word, count, start, id);
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
        const long Largest = long.MaxValue / 10 - 1;
        while (_at < data.Length && StepCharacters.IsDigit(data[_at]))
        {
            if (id > Largest)
            {
                throw new StepException(start, "the number of an instance is beyond all bounds");
            }

            id = (id * 10) + data[_at++] - '0';
        }

        return _at > start + 1 && id > 0 ? id : throw new StepException(start, "an instance has no number above 0");
    }

    // Gives the keyword; -1 for one of which there can be no instance.
    private short Verified(short keyword, ReadOnlySpan<byte> word, int count, int start, long id)
    {
        int arity = keyword < 0 ? -1 : arities[keyword];
        if (arity < 0)
        {
            string message = keyword < 0
                ? $"the schema has no entity {Text(word)}"
                : $"{Text(word)} is abstract and has no instances of its own";
            _errors.Add(new StepError(start, id, message));
            return -1;
        }

        return count == arity
            ? keyword
            : throw new StepException(start, $"{Text(word)} has {arity} attributes, {count} are given");
    }

    // Several partial records in brackets: #1=(A(1)B(2));
    private void Complex(int start, long id)
    {
        Take('(');
        int parts = 0;
        while (true)
        {
            _at = StepCharacters.Skip(data, _at);
            int wordStart = _at;
            while (_at < data.Length && StepCharacters.IsKeyword(data[_at]))
            {
                _at++;
            }

            if (_at == wordStart)
            {
                break;
            }

            ReadOnlySpan<byte> word = data.AsSpan(wordStart, _at - wordStart);
            if (keywords.Find(word) < 0)
            {
                _errors.Add(new StepError(start, id, $"the schema has no entity {Text(word)}"));
            }

            Parameters();
            parts++;
        }

        if (parts == 0)
        {
            throw new StepException(_at, "the name of an entity is missing");
        }

        Take(')');
    }

    // Verifies values in brackets and gives how many stand on the outermost level.
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
                if (Opens())
                {
                    afterOpen = true;
                    depth = depth < StepParser.MaxDepth
                        ? depth + 1
                        : throw new StepException(_at, $"lists are nested deeper than {StepParser.MaxDepth}");
                    continue;
                }
            }

            // Behind a value: brackets that close, then a comma or the end.
            afterOpen = false;
            while (true)
            {
                if (depth == 0)
                {
                    return count;
                }

                _at = StepCharacters.Skip(data, _at);
                byte one = _at < data.Length ? data[_at] : throw Cut();
                _at++;
                if (one == ',')
                {
                    break;
                }

                depth = one == ')' ? depth - 1 : throw new StepException(_at - 1, "a ',' or ')' is missing");
            }
        }
    }

    // Steps over a value; true for one that is a list or typed, behind its opening bracket.
    private bool Opens()
    {
        byte one = _at < data.Length ? data[_at] : throw Cut();
        switch (one)
        {
            case (byte)'(':
                _at++;
                return true;
            case (byte)'$' or (byte)'*':
                _at++;
                return false;
            case (byte)'\'':
                SkipText();
                return false;
            case (byte)'#':
                SkipDigits();
                return false;
            case (byte)'.':
                SkipEnumeration();
                return false;
            case (byte)'"':
                SkipBinary();
                return false;
            default:
                if (StepCharacters.IsLetter(one))
                {
                    SkipWord();
                    _at = StepCharacters.Skip(data, _at);
                    Take('(');
                    return true;
                }

                SkipNumber();
                return false;
        }
    }

    private void SkipText()
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
                throw new StepException(start, "a text has no end");
            }

            if (_at == data.Length || data[_at] != '\'')
            {
                return;
            }

            _at++;
        }
    }

    private void SkipDigits()
    {
        int start = ++_at;
        while (_at < data.Length && StepCharacters.IsDigit(data[_at]))
        {
            _at++;
        }

        if (_at == start)
        {
            throw new StepException(start - 1, "a reference has no number");
        }
    }

    private void SkipEnumeration()
    {
        int start = _at++;
        SkipWord();
        if (_at >= data.Length || data[_at] != '.' || _at == start + 1)
        {
            throw new StepException(start, "an item of an enumeration has no second point");
        }

        _at++;
    }

    private void SkipBinary()
    {
        int length = data.AsSpan(_at + 1).IndexOf((byte)'"');
        _at = length >= 0 ? _at + length + 2 : throw new StepException(_at, "a binary value has no end");
    }

    private void SkipWord()
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
            throw new StepException(start, $"no value can begin with '{Text(data.AsSpan(start, 1))}'");
        }
    }

    private void Take(char one)
    {
        if (_at >= data.Length)
        {
            throw Cut();
        }

        if (data[_at] != one)
        {
            throw new StepException(_at, $"a '{one}' is missing");
        }

        _at++;
    }

    private StepException Cut() => new(data.Length, "the file ends within a record");

    // Goes on at the next line that begins a record, or at the end of the section.
    private void Recover(StepException error)
    {
        int from = Math.Min(error.Offset, data.Length);
        int start = _recordStart;
        _errors.Add(new StepError(from, IdAt(start), error.Message));
        int at = Math.Max(_at, start + 1);
        // A comment without end takes all that follows with it.
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

    private static string Text(ReadOnlySpan<byte> word)
    {
        const int Longest = 60;
        return Encoding.Latin1.GetString(word.Length > Longest ? word[..Longest] : word);
    }
}
