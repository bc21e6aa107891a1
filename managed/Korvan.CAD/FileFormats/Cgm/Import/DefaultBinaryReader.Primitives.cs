using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <content>The parameters of one element.</content>
public sealed partial class DefaultBinaryReader
{
    private const int MaxRecordDepth = 16;

    // The data that is read: the element, or a record inside it.
    private byte[] _data = [];
    private int _at;
    private int _end;
    private int _depth;

    /// <inheritdoc/>
    public bool HasMore => _at < _end;

    /// <inheritdoc/>
    public int Position => _at;

    /// <inheritdoc/>
    public int ReadInteger() => ReadSigned(State.IntegerBits);

    /// <inheritdoc/>
    public int ReadIndex() => ReadSigned(State.IndexBits);

    /// <inheritdoc/>
    public int ReadName() => ReadSigned(State.NameBits);

    /// <inheritdoc/>
    public int ReadColorIndex()
    {
        long index = ReadUnsigned(State.ColorIndexBits);
        return index <= int.MaxValue
            ? (int)index
            : throw new CgmDataException($"{index} is too large for a colour index");
    }

    /// <inheritdoc/>
    public int ReadEnumeration() => BinaryPrimitives.ReadInt16BigEndian(Take(2));

    /// <inheritdoc/>
    public long ReadUnsigned(int bits) => bits switch
    {
        8 => Take(1)[0],
        16 => BinaryPrimitives.ReadUInt16BigEndian(Take(2)),
        24 => Take24() & 0xFFFFFF,
        32 => BinaryPrimitives.ReadUInt32BigEndian(Take(4)),
        _ => throw new CgmDataException($"{bits} bits are no width of an integer"),
    };

    /// <inheritdoc/>
    public double ReadReal() => ReadReal(State.Real);

    /// <inheritdoc/>
    public double ReadVdc() =>
        State.HasRealCoordinates ? ReadReal(State.Current.VdcReal) : ReadSigned(State.Current.VdcIntegerBits);

    /// <inheritdoc/>
    public VC ReadViewportCoordinate()
    {
        bool isFraction = State.ViewportMode == DeviceViewportSpecificationMode.Mode.FractionOfDrawingSurface;
        return new VC(isFraction ? ReadReal() : ReadInteger());
    }

    /// <inheritdoc/>
    public CgmPoint ReadPoint()
    {
        double x = ReadVdc();
        return new CgmPoint(x, ReadVdc());
    }

    /// <inheritdoc/>
    public CgmColor ReadDirectColor()
    {
        Span<long> components = stackalloc long[State.ColorComponents];
        foreach (ref long component in components)
        {
            component = ReadColorComponent();
        }

        return new CgmColor(Color.FromArgb(new ColorCoding(State).ToArgb(components)));
    }

    /// <inheritdoc/>
    public long ReadColorComponent() => ReadUnsigned(State.ColorBits);

    /// <inheritdoc/>
    public string ReadString() => TextCoding.Decode(TakeString(), State);

    /// <inheritdoc/>
    public byte[] ReadData() => TakeString().ToArray();

    /// <inheritdoc/>
    public StructuredDataRecord ReadStructuredData()
    {
        if (_depth == MaxRecordDepth)
        {
            throw new CgmDataException($"records are nested more than {MaxRecordDepth} deep");
        }

        byte[] record = TakeString().ToArray();
        (byte[] data, int at, int end) = (_data, _at, _end);
        (_data, _at, _end) = (record, 0, record.Length);
        _depth++;
        try
        {
            return StructuredDataCoding.Read(Exchange);
        }
        finally
        {
            (_data, _at, _end) = (data, at, end);
            _depth--;
        }
    }

    /// <inheritdoc/>
    public byte[] ReadRest() => Take(_end - _at).ToArray();

    /// <summary>Reads points up to the end of the element; those of the default precision take a fast path.</summary>
    internal List<CgmPoint> ReadPoints()
    {
        int left = _end - _at;
        bool isDefault = !State.HasRealCoordinates && State.Current.VdcIntegerBits == 16 && left % 4 == 0;
        var points = new List<CgmPoint>(isDefault ? left / 4 : 4);
        while (!isDefault && HasMore)
        {
            points.Add(ReadPoint());
        }

        for (ReadOnlySpan<byte> data = Take(_end - _at); data.Length > 0; data = data[4..])
        {
            short x = BinaryPrimitives.ReadInt16BigEndian(data), y = BinaryPrimitives.ReadInt16BigEndian(data[2..]);
            points.Add(new CgmPoint(x, y));
        }

        return points;
    }

    private int ReadSigned(int bits) => bits switch
    {
        8 => (sbyte)Take(1)[0],
        16 => BinaryPrimitives.ReadInt16BigEndian(Take(2)),
        24 => Take24() << 8 >> 8,
        32 => BinaryPrimitives.ReadInt32BigEndian(Take(4)),
        _ => throw new CgmDataException($"{bits} bits are no width of an integer"),
    };

    private double ReadReal(Precision precision) => precision switch
    {
        Precision.Fixed32 => BinaryPrimitives.ReadInt32BigEndian(Take(4)) / 65536.0,
        Precision.Fixed64 => BinaryPrimitives.ReadInt64BigEndian(Take(8)) / 4294967296.0,
        Precision.Floating32 => Finite(BinaryPrimitives.ReadSingleBigEndian(Take(4))),
        _ => Finite(BinaryPrimitives.ReadDoubleBigEndian(Take(8))),
    };

    private static double Finite(double value) =>
        double.IsFinite(value) ? value : throw new CgmDataException("a real number is infinite or not a number");

    private int Take24()
    {
        ReadOnlySpan<byte> bytes = Take(3);
        return (bytes[0] << 16) | (bytes[1] << 8) | bytes[2];
    }

    private ReadOnlySpan<byte> Take(int count)
    {
        int at = _at;
        if (_end - at < count)
        {
            throw new CgmDataException(
                $"the parameters end after {_end} bytes, within a value of {count} bytes at {at}");
        }

        _at = at + count;
        return _data.AsSpan(at, count);
    }

    // The length 255 announces partitions, each with a header word, whose highest bit announces another one.
    private ReadOnlySpan<byte> TakeString()
    {
        const int longForm = 255;
        const int morePartsFlag = 0x8000;
        int length = Take(1)[0];
        if (length != longForm)
        {
            return Take(length);
        }

        int word = BinaryPrimitives.ReadUInt16BigEndian(Take(2));
        ReadOnlySpan<byte> text = Take(word & ~morePartsFlag);
        if ((word & morePartsFlag) == 0)
        {
            return text;
        }

        var parts = new List<byte>(text.ToArray());
        while ((word & morePartsFlag) != 0)
        {
            word = BinaryPrimitives.ReadUInt16BigEndian(Take(2));
            parts.AddRange(Take(word & ~morePartsFlag));
        }

        return parts.ToArray();
    }
}
