using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>A table of fixed records.</summary>
/// <param name="Size">The length of a record.</param>
/// <param name="Count">The number of records.</param>
/// <param name="Address">The position of the first one.</param>
internal readonly record struct EarlyTable(int Size, int Count, int Address);

/// <summary>Entity records, one after another.</summary>
/// <param name="Name">The name in messages.</param>
/// <param name="Start">The position of the first one.</param>
/// <param name="End">The position after the last one.</param>
internal readonly record struct EarlySection(string Name, int Start, int End);

/// <summary>Where a file has its parts.</summary>
internal sealed class EarlyLayout
{
    private const int SectionStart = 0x0C;
    private const int OldestVariableStart = 0x0C;
    private const uint LengthMask = 0xFFFFFF;
    private const int MinRecordSize = 33;

    // The tables whose places the file header has before its variables.
    private static readonly string[] FirstTables = ["BLOCK", "LAYER", "STYLE", "LTYPE", "VIEW"];

    private readonly DwgSource _source;
    private readonly EarlyBytes _bytes;

    private EarlyLayout(DwgSource source, EarlyRelease release)
    {
        _source = source;
        _bytes = new EarlyBytes(source, "header");
        Release = release;
        if (release == EarlyRelease.R14)
        {
            ReadOldest();
        }
        else
        {
            ReadSections();
        }
    }

    internal EarlyRelease Release { get; }

    /// <summary>Gets the entities of model space and paper space.</summary>
    internal EarlySection Entities { get; private set; }

    /// <summary>Gets the entities of blocks.</summary>
    internal EarlySection Blocks { get; private set; }

    /// <summary>Gets the records that grew and no longer fit where they were.</summary>
    internal EarlySection Extras { get; private set; }

    /// <summary>Gets the tables by their names.</summary>
    internal Dictionary<string, EarlyTable> Tables { get; } = [];

    /// <summary>Gets the fields of the header variables.</summary>
    internal List<EarlyField> Variables { get; } = [];

    /// <summary>Gets the position of the first header variable.</summary>
    internal int VariableStart { get; private set; }

    /// <summary>Gets the index of the code page; 0 for none.</summary>
    internal int CodePage { get; private set; }

    /// <summary>Reads the file header.</summary>
    internal static EarlyLayout Read(DwgSource source, EarlyRelease release) => new(source, release);

    private void ReadOldest()
    {
        _bytes.Position = VariableStart = OldestVariableStart;
        Variables.AddRange(EarlyHeaderFields.Oldest);
        uint length = (uint)_source.Data.Length;
        foreach (EarlyField field in Variables)
        {
            if (field.Coding == EarlyCoding.Offset)
            {
                length = Math.Min(_bytes.UInt32(), length);
                continue;
            }

            _bytes.Take(EarlyValues.LengthOf(field));
        }

        Entities = new EarlySection("entities", _bytes.Position, (int)length);
    }

    private void ReadSections()
    {
        _bytes.Position = SectionStart + 1;
        _bytes.Take(2 * sizeof(short));
        int variableCount = _bytes.UInt16();
        _bytes.Take(1);
        uint start = _bytes.UInt32();
        uint end = _bytes.UInt32();
        Entities = Section("entities", start, end - (long)start);
        Blocks = Section("block entities", _bytes.UInt32(), _bytes.UInt32() & LengthMask);
        Extras = Section("extra entities", _bytes.UInt32(), _bytes.UInt32() & LengthMask);
        foreach (string name in FirstTables)
        {
            ReadTable(name);
        }

        VariableStart = _bytes.Position;
        foreach ((int above, EarlyField[] fields) in EarlyHeaderFields.Parts)
        {
            if (variableCount > above)
            {
                Variables.AddRange(Array.FindAll(fields, field => field.IsIn(Release, 0)));
            }
        }

        foreach (EarlyField field in Variables)
        {
            ReadPlace(field);
        }

        VerifyChecksum();
    }

    private void ReadPlace(EarlyField field)
    {
        switch (field.Coding)
        {
            case EarlyCoding.Table:
                ReadTable(field.Name);
                break;
            case EarlyCoding.CodePage:
                CodePage = _bytes.UInt16();
                break;
            default:
                _bytes.Take(EarlyValues.LengthOf(field));
                break;
        }
    }

    private void VerifyChecksum()
    {
        if (Release < EarlyRelease.R11 || Variables.Count == 0)
        {
            return;
        }

        _bytes.Take(sizeof(ushort));
        _bytes.End = _bytes.Position;
        if (!_bytes.HasChecksum(0))
        {
            _bytes.Report(LoadDefectCode.WrongChecksum, 0, "the checksum of the file header is wrong");
        }
    }

    private EarlySection Section(string name, long start, long length)
    {
        int size = _source.Data.Length;
        if (start > size || length < 0 || length > size - start)
        {
            _source.Report(
                LoadDefectCode.Truncated,
                name,
                start,
                $"the section has {length} bytes, which is more than the file has after its start");
            start = Math.Min(start, size);
            length = size - start;
        }

        int found = length == 0 ? (int)start : Find(name, (int)start);
        return new EarlySection(name, found, (int)Math.Min(found + length, size));
    }

    private void ReadTable(string name)
    {
        int size = _bytes.UInt16();
        int count = _bytes.UInt16();
        _bytes.Take(sizeof(short));
        uint address = _bytes.UInt32();
        if (count == 0)
        {
            return;
        }

        if (size < MinRecordSize)
        {
            _source.Report(
                LoadDefectCode.InvalidSection, name, _bytes.Position, $"the records of the table have {size} bytes");
            return;
        }

        int start = Find(name, (int)Math.Min(address, _source.Data.Length));
        int room = (_source.Data.Length - start) / size;
        if (count > room)
        {
            _source.Report(
                LoadDefectCode.CountTooLarge,
                name,
                start,
                $"the table has {count} records, but the file has room for {room} only");
            count = room;
        }

        Tables.Add(name, new EarlyTable(size, count, start));
    }

    // In release 11, a sequence of bytes stands before each part: a part whose place is wrong is found by it.
    private int Find(string name, int start)
    {
        ReadOnlySpan<byte> sentinel = EarlySentinels.Of(name);
        ReadOnlySpan<byte> data = _source.Data;
        if (Release < EarlyRelease.R11 || sentinel.IsEmpty
            || (start >= sentinel.Length && data[(start - sentinel.Length)..].StartsWith(sentinel)))
        {
            return start;
        }

        int found = data.IndexOf(sentinel);
        _source.Report(
            LoadDefectCode.InvalidSection,
            name,
            start,
            found < 0 ? "the bytes that begin it are not in the file" : "it begins at another place");
        return found < 0 ? start : found + sentinel.Length;
    }
}
