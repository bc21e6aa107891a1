using System;
using System.Buffers.Binary;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Reads values of whole bytes, lowest first, between two positions of a file.</summary>
/// <param name="source">The file.</param>
/// <param name="section">The part of it that is read, for messages.</param>
internal sealed class EarlyBytes(DwgSource source, string section)
{
    private readonly byte[] _data = source.Data;

    /// <summary>Gets or sets the position of the next value.</summary>
    internal int Position { get; set; }

    /// <summary>Gets or sets the position that no value goes beyond.</summary>
    internal int End { get; set; } = source.Data.Length;

    /// <summary>Gets how many bytes are left.</summary>
    internal int Remaining => End - Position;

    /// <summary>Gets the part of the file that is read.</summary>
    internal string Section { get; } = section;

    /// <summary>Gets or sets the handle of the record that is read; 0 for none.</summary>
    internal ulong Handle { get; set; }

    /// <summary>Gets whether indexes of records that are not in a table are no defects, as in header variables: nothing
    /// is drawn with them.</summary>
    internal bool AllowsUnresolved { get; init; }

    internal byte Byte() => Take(sizeof(byte))[0];

    internal short Int16() => BinaryPrimitives.ReadInt16LittleEndian(Take(sizeof(short)));

    internal ushort UInt16() => BinaryPrimitives.ReadUInt16LittleEndian(Take(sizeof(ushort)));

    internal uint UInt32() => BinaryPrimitives.ReadUInt32LittleEndian(Take(sizeof(uint)));

    internal double Double()
    {
        double value = BinaryPrimitives.ReadDoubleLittleEndian(Take(sizeof(double)));
        return double.IsFinite(value)
            ? value
            : throw Fail(LoadDefectCode.NotFinite, Position - sizeof(double), $"a number is {value}");
    }

    /// <summary>Reads a number whose first byte is the highest, as handles are.</summary>
    internal ulong BigEndian(int length)
    {
        ulong value = 0;
        foreach (byte one in Take(length))
        {
            value = (value << 8) | one;
        }

        return value;
    }

    internal ReadOnlySpan<byte> Take(int length)
    {
        if (length > Remaining)
        {
            throw Fail(LoadDefectCode.Truncated, Position, $"{length} bytes were expected, but {Remaining} are left");
        }

        ReadOnlySpan<byte> taken = _data.AsSpan(Position, length);
        Position += length;
        return taken;
    }

    /// <summary>Determines whether the two bytes at the end are the checksum of those from a position on.</summary>
    internal bool HasChecksum(int start)
    {
        int length = End - sizeof(ushort) - start;
        return length >= 0 && Crc16.Compute(Crc16.Seed, _data.AsSpan(start, length))
            == BinaryPrimitives.ReadUInt16LittleEndian(_data.AsSpan(start + length));
    }

    /// <summary>Creates the exception for a defect.</summary>
    internal ImageLoadException Fail(LoadDefectCode code, int offset, string cause) =>
        source.Fail(code, Handle == 0 ? Section : $"{Section}, handle {Handle:X}", offset, cause);

    /// <summary>Collects a defect, or throws it if a defect ends the load.</summary>
    internal void Report(LoadDefectCode code, int offset, string cause) =>
        source.Report(code, Handle == 0 ? Section : $"{Section}, handle {Handle:X}", offset, cause);
}
