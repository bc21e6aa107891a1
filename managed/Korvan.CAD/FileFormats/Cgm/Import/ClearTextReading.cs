using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Fills commands from the parameters of a clear text metafile.</summary>
internal sealed class ClearTextReading(ClearTextScanner scanner, CodingState state, Func<List<Command>> inner)
    : ParameterExchange(state)
{
    private const int MaxRecordDepth = 16;

    private static readonly int[] Widths = [8, 16, 24, 32];
    private static readonly int[] LocalWidths = [0, 1, 2, 4, 8, 16, 24, 32];

    private int _depth;
    private CgmPoint? _last;

    /// <summary>Gets or sets whether each point but the first is an offset from the one before.</summary>
    internal bool IsIncremental { get; set; }

    internal override bool IsReading => true;

    internal override bool IsClearText => true;

    internal override bool HasMore => scanner.Peek() is ClearTextToken.Word or ClearTextToken.String;

    internal override bool IsAtString => scanner.Peek() == ClearTextToken.String;

    internal void BeginElement(bool isIncremental) => (IsIncremental, _last, _depth) = (isIncremental, null, 0);

    internal override int Integer(int value) => (int)Whole(int.MinValue, int.MaxValue);

    internal override int Index(int value) => Integer(value);

    internal override int Name(int value) => Integer(value);

    internal override int ColorIndex(int value) => (int)Whole(0, int.MaxValue);

    internal override int BareEnumeration(int value) => Integer(value);

    internal override int Enumeration(int value, KeywordTable keywords) => keywords.ValueOf(scanner.ReadWord());

    internal override double Real(double value) => scanner.ReadReal();

    internal override double Vdc(double value)
    {
        double read = scanner.ReadReal();
        State.HasFractions |= !State.HasRealCoordinates && !NumberRange.IsWhole(read);
        return read;
    }

    internal override CgmPoint Point(CgmPoint? value)
    {
        double x = Vdc(0);
        double y = Vdc(0);
        if (!IsIncremental || _last is null)
        {
            return _last = new CgmPoint(x, y);
        }

        return _last = new CgmPoint(_last.X + x, _last.Y + y);
    }

    internal override CgmColor DirectColor(CgmColor? value)
    {
        return new CgmColor(Korvan.CAD.Color.FromArgb(ReadArgb(new ColorCoding(State))));
    }

    internal override long ColorComponent(long value) => Whole(0, uint.MaxValue);

    internal override string String(string? value) => TextCoding.Decode(scanner.ReadString(), State);

    internal override byte[] Data(byte[]? value) => scanner.ReadString();

    internal override StructuredDataRecord Record(StructuredDataRecord? value)
    {
        if (_depth == MaxRecordDepth)
        {
            throw new CgmDataException($"records are nested more than {MaxRecordDepth} deep");
        }

        if (!IsAtString)
        {
            _depth++;
            StructuredDataRecord rest = StructuredDataCoding.Read(this);
            _depth--;
            return rest;
        }

        var record = new ClearTextScanner(scanner.ReadString());
        return StructuredDataCoding.Read(new ClearTextReading(record, State, inner) { _depth = _depth + 1 });
    }

    internal override VC ViewportCoordinate(VC? value) => new(scanner.ReadReal());

    internal override long Unsigned(long value, int bits) => Whole(0, NumberRange.Unsigned(bits).Highest);

    internal override int Signed(int value, int bits) =>
        (int)Whole(NumberRange.Signed(bits).Lowest, NumberRange.Signed(bits).Highest);

    internal override byte[] Bits(byte[]? value)
    {
        var bytes = new List<byte>();
        while (HasMore)
        {
            int word = (int)Whole(0, ushort.MaxValue);
            bytes.Add((byte)(word >> 8));
            bytes.Add((byte)word);
        }

        return [.. bytes];
    }

    protected override int SignedRange(int value)
    {
        (double lowest, double highest) = (scanner.ReadReal(), scanner.ReadReal());
        int bits = Array.Find(
            Widths,
            one => lowest >= NumberRange.Signed(one).Lowest && highest <= NumberRange.Signed(one).Highest);
        return bits > 0 ? bits : throw new CgmDataException(
            string.Create(CultureInfo.InvariantCulture, $"numbers from {lowest} to {highest} take more than 32 bits"));
    }

    protected override int UnsignedRange(int value) => FindBits(Widths);

    protected override int LocalRange(int value) => FindBits(LocalWidths);

    internal override Precision RealForm(Precision value)
    {
        (double lowest, double highest) = (scanner.ReadReal(), scanner.ReadReal());
        return RealForms.Find(lowest, highest, Integer(0));
    }

    internal override int[] Cells(int[]? value, int width, int height, int precision, bool withMode)
    {
        var format = CellFormat.Of(State, width, height, precision);
        if (scanner.Left < (2L * format.Count * format.Components) - 1)
        {
            throw new CgmDataException(
                $"{width} by {height} cells are announced, more than the file has characters for");
        }

        int[] cells = new int[format.Count];
        var colors = new ColorCoding(State, format);
        for (int i = 0; i < cells.Length; i++)
        {
            cells[i] = format.IsIndexed ? ColorIndex(0) : ReadArgb(colors);
        }

        return cells;
    }

    internal override List<Command> Commands(List<Command> value) => inner();

    private int ReadArgb(ColorCoding colors)
    {
        Span<long> components = stackalloc long[State.ColorComponents];
        foreach (ref long component in components)
        {
            component = ColorComponent(0);
        }

        return colors.ToArgb(components);
    }

    private int FindBits(int[] choices)
    {
        double highest = scanner.ReadReal();
        int at = Array.FindIndex(choices, one => highest <= NumberRange.Unsigned(one).Highest);
        return at >= 0 ? choices[at] : throw new CgmDataException(
            string.Create(CultureInfo.InvariantCulture, $"numbers up to {highest} take more than 32 bits"));
    }

    private long Whole(long lowest, long highest)
    {
        long value = scanner.ReadInteger();
        return value >= lowest && value <= highest ? value
            : throw new CgmDataException($"the number {value} is not between {lowest} and {highest}");
    }
}
