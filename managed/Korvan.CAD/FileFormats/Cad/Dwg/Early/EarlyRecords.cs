using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>What was read of a file so far, so that no record is read twice and no search is endless.</summary>
internal sealed class EarlyProgress(int fileLength)
{
    /// <summary>Gets the positions of the records that were read.</summary>
    internal HashSet<int> Seen { get; } = [];

    /// <summary>Gets or sets how many bytes may still be searched for records.</summary>
    internal long Effort { get; set; } = 16L * fileLength;
}

/// <summary>
/// Goes through entity records in the order of the drawing. A record that grew stands among the extra entities: a
/// record with its place is where it was, and another one leads back.
/// </summary>
/// <param name="source">The file.</param>
/// <param name="layout">Where the file has its parts.</param>
/// <param name="progress">What was read so far.</param>
internal sealed class EarlyRecords(DwgSource source, EarlyLayout layout, EarlyProgress progress)
{
    private const int JumpLength = 8;
    private const int HeaderLength = 4;
    private const byte ErasedBit = 0x80;
    private const uint OffsetMask = 0xFFFFFF;
    private const byte BlocksMark = 0x40;
    private const byte ExtrasMark = 0x80;

    private EarlySection _section;
    private int _position;
    private int _start;

    /// <summary>Gets the number of the type of the current record.</summary>
    internal int Type { get; private set; }

    /// <summary>Gets the current record; its position is that after type, flags and length.</summary>
    internal EarlyBytes Bytes { get; private set; } = new(source, "entities");

    /// <summary>Gets the flags of the current record.</summary>
    internal int Flags { get; private set; }

    /// <summary>Begins at a position of a section.</summary>
    internal void Begin(EarlySection section, int position)
    {
        Enter(section);
        _position = position;
    }

    /// <summary>Goes on to the next record that was not erased.</summary>
    /// <returns>Whether there is one.</returns>
    internal bool Next()
    {
        while (_position < _section.End)
        {
            _start = _position;
            if (!progress.Seen.Add(_start))
            {
                throw Bytes.Fail(LoadDefectCode.DuplicateId, _start, "the record was read before");
            }

            Bytes.Handle = 0;
            Bytes.Position = _start;
            Bytes.End = _section.End;
            Type = Bytes.Byte();
            Flags = Bytes.Byte();
            int length = Bytes.UInt16();
            if (Type == EarlyEntityFields.Jump)
            {
                Follow(Bytes.UInt32(), _start + JumpLength);
                continue;
            }

            if (length < HeaderLength || length > _section.End - _start)
            {
                throw Bytes.Fail(
                    LoadDefectCode.Truncated,
                    _start,
                    $"a record has {length} bytes, but {_section.End - _start} are left");
            }

            _position = _start + length;
            if ((Type & ErasedBit) == 0)
            {
                Limit(_start);
                return true;
            }
        }

        return false;
    }

    /// <summary>Takes the current record back, for who reads it from its own position.</summary>
    internal void Unread() => progress.Seen.Remove(_start);

    /// <summary>Goes on to what is a record by its type, length and checksum, after one whose end is unknown.</summary>
    /// <returns>Whether there is one.</returns>
    internal bool Resume()
    {
        int next = Search();
        _position = next < 0 ? _section.End : next;
        return next >= 0 && Next();
    }

    // What is damaged may be the length of the record.
    private void FindNext()
    {
        int position = Bytes.Position;
        if (_position < _section.End && !IsRecord(_position) && Search() is >= 0 and var next)
        {
            _position = next;
        }

        Bytes.Position = position;
    }

    private int Search()
    {
        for (int start = _start + 1; start < _section.End - HeaderLength && progress.Effort > 0; start++)
        {
            progress.Effort--;
            if (!progress.Seen.Contains(start) && IsRecord(start))
            {
                return start;
            }
        }

        return -1;
    }

    private bool IsRecord(int start)
    {
        Bytes.Position = start;
        Bytes.End = _section.End;
        int type = Bytes.Byte() & ~ErasedBit;
        Bytes.Byte();
        int length = Bytes.UInt16();
        if (EarlyEntityFields.Of(type) is null || length < JumpLength || length > _section.End - start)
        {
            return false;
        }

        if (layout.Release < EarlyRelease.R11)
        {
            // Without checksums, something that is followed by another record is one.
            int next = start + length;
            return next == _section.End || EarlyEntityFields.Of(source.Data[next] & ~ErasedBit) is not null;
        }

        progress.Effort -= length;
        Bytes.End = start + length;
        return Bytes.HasChecksum(start);
    }

    // The checksum at the end is no part of the fields.
    private void Limit(int start)
    {
        Bytes.End = _position;
        if (layout.Release < EarlyRelease.R11)
        {
            return;
        }

        if (!Bytes.HasChecksum(start))
        {
            Bytes.Report(LoadDefectCode.WrongChecksum, start, "the checksum of a record is wrong");
            FindNext();
        }

        Bytes.End = _position - sizeof(ushort);
    }

    private void Follow(uint target, int after)
    {
        int offset = (int)(target & OffsetMask);
        (EarlySection section, int position) = (byte)(target >> 24) switch
        {
            0 => (layout.Entities, offset),
            BlocksMark => (layout.Blocks, layout.Blocks.Start + offset),
            ExtrasMark => (layout.Extras, layout.Extras.Start + offset),
            _ => (default, -1),
        };
        if (position < section.Start || position >= section.End)
        {
            // What leads to the end of a section leads to its end only.
            _position = position == section.End && section.End > 0 ? _section.End : after;
            if (_position == after)
            {
                Bytes.Report(
                    LoadDefectCode.UnresolvedReference, after - JumpLength, $"a record leads to the place {target:X}");
            }

            return;
        }

        Enter(section);
        _position = position;
    }

    private void Enter(EarlySection section)
    {
        if (section.Name != _section.Name)
        {
            Bytes = new EarlyBytes(source, section.Name);
        }

        _section = section;
    }
}
