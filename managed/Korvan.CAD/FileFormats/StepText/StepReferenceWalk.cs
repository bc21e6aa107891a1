using System;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Enumerates the references in a verified record, with the attribute that each is in.</summary>
internal ref struct StepReferenceWalk
{
    // Delimiters sort ahead of digits and letters.
    private const byte LastDelimiter = (byte)'/';

    private readonly ReadOnlySpan<byte> _data;
    private int _at;
    private int _depth;

    /// <summary>Starts at a record.</summary>
    /// <param name="record">The bytes of the record from its # sign to its semicolon.</param>
    internal StepReferenceWalk(ReadOnlySpan<byte> record)
    {
        _data = record;
        _at = 1;
        Id = 0;
        Attribute = 0;
    }

    /// <summary>Gets the number of the instance that is referred to.</summary>
    internal long Id { get; private set; }

    /// <summary>Gets the range of the reference in the record.</summary>
    internal Range Place { get; private set; }

    /// <summary>Gets the zero-based index of the attribute.</summary>
    internal int Attribute { get; private set; }

    /// <summary>Advances to the next reference.</summary>
    internal bool MoveNext()
    {
        while ((uint)_at < (uint)_data.Length)
        {
            byte one = _data[_at];
            if (one > LastDelimiter)
            {
                _at++;
                continue;
            }

            switch (one)
            {
                case (byte)'#':
                    ReadId();
                    return true;
                case (byte)'\'':
                    SkipString();
                    continue;
                case (byte)'(':
                    _depth++;
                    break;
                case (byte)')':
                    _depth--;
                    break;
                case (byte)',':
                    Attribute += _depth == 1 ? 1 : 0;
                    break;
                case (byte)'/':
                    _at = Math.Max(StepCharacters.Skip(_data, _at) - 1, _at);
                    break;
            }

            _at++;
        }

        return false;
    }

    // A doubled apostrophe is read as the end of one string and the beginning of the next.
    private void SkipString()
    {
        for (_at++; (uint)_at < (uint)_data.Length && _data[_at] != '\''; _at++)
        {
        }

        _at++;
    }

    private void ReadId()
    {
        long id = 0;
        int start = _at;
        for (_at++; _at < _data.Length && StepCharacters.IsDigit(_data[_at]); _at++)
        {
            id = id < long.MaxValue / 16 ? (id * 10) + _data[_at] - '0' : id;
        }

        Id = id;
        Place = start.._at;
    }
}
