using System;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Walks over the references in a record that was verified, with the attribute that each is in.</summary>
internal ref struct StepReferenceWalk
{
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

    /// <summary>Gets the place of the attribute.</summary>
    internal int Attribute { get; private set; }

    /// <summary>Goes to the next reference.</summary>
    internal bool MoveNext()
    {
        while (true)
        {
            int length = _data[_at..].IndexOfAny(StepCharacters.Marks);
            if (length < 0)
            {
                return false;
            }

            _at += length;
            switch (_data[_at])
            {
                case (byte)'#':
                    ReadId();
                    return true;
                case (byte)'\'':
                    _at += 2 + _data[(_at + 1)..].IndexOf((byte)'\'');
                    break;
                case (byte)'(':
                    _depth++;
                    _at++;
                    break;
                case (byte)')':
                    _depth--;
                    _at++;
                    break;
                case (byte)',':
                    Attribute += _depth == 1 ? 1 : 0;
                    _at++;
                    break;
                default:
                    _at = StepCharacters.Skip(_data, _at) is var next && next > _at ? next : _at + 1;
                    break;
            }
        }
    }

    private void ReadId()
    {
        long id = 0;
        for (_at++; _at < _data.Length && StepCharacters.IsDigit(_data[_at]); _at++)
        {
            id = id < long.MaxValue / 16 ? (id * 10) + _data[_at] - '0' : id;
        }

        Id = id;
    }
}
