using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.WrpGen.Naming;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>
/// Carries the parameters of a command from a file or to it; each encoding implements it. A command states its
/// parameters once, in their order, by <c>Radius = x.Vdc(Radius)</c>: while reading, the method returns the value from
/// the file; while writing, it writes its argument and returns it. So no encoding can have an order of its own.
/// </summary>
internal abstract class ParameterExchange(CodingState state)
{
    // Memory is taken as items arrive, since a damaged file can announce any count.
    private const int MaxReserved = 4096;

    private static readonly KeywordTable OffOn = new([0, 1], ["OFF", "ON"]);
    private static readonly KeywordTable NoYes = new([0, 1], ["NO", "YES"]);

    private static readonly int[] LocalWidths = [0, 1, 2, 4, 8, 16, 24, 32];

    /// <summary>Gets how the parameters are coded at this place.</summary>
    internal CodingState State { get; } = state;

    internal abstract bool IsReading { get; }

    /// <summary>Gets whether the encoding is clear text. Only where the two encodings differ in more than form does a
    /// command ask.</summary>
    internal abstract bool IsClearText { get; }

    /// <summary>Gets, while reading, whether the element has more parameters; false while writing.</summary>
    internal abstract bool HasMore { get; }

    /// <summary>Gets, while clear text is read, whether a quoted string comes next. Lists of points that binary files
    /// count end there.</summary>
    internal abstract bool IsAtString { get; }

    /// <summary>I: an integer.</summary>
    internal abstract int Integer(int value);

    /// <summary>IX: an index; negative ones are private.</summary>
    internal abstract int Index(int value);

    /// <summary>N: a name, which is an integer.</summary>
    internal abstract int Name(int value);

    /// <summary>CI: an index into the colour table.</summary>
    internal abstract int ColorIndex(int value);

    /// <summary>E: an enumerated value.</summary>
    internal abstract int Enumeration(int value, KeywordTable keywords);

    /// <summary>E: an enumerated value without keywords.</summary>
    internal abstract int BareEnumeration(int value);

    /// <summary>R: a real number.</summary>
    internal abstract double Real(double value);

    /// <summary>VDC: a coordinate or a length in virtual device coordinates.</summary>
    internal abstract double Vdc(double value);

    /// <summary>P: a point, two coordinates.</summary>
    internal abstract CgmPoint Point(CgmPoint? value);

    /// <summary>CD: a direct colour, given by its components.</summary>
    internal abstract CgmColor DirectColor(CgmColor? value);

    /// <summary>CCO: one component of a direct colour, as the number that the file holds.</summary>
    internal abstract long ColorComponent(long value);

    /// <summary>S, SF: a string.</summary>
    internal abstract string String(string? value);

    /// <summary>D: a data record, coded as a string of one character for each byte.</summary>
    internal abstract byte[] Data(byte[]? value);

    /// <summary>SDR: a structured data record, values each with its type and count.</summary>
    internal abstract StructuredDataRecord Record(StructuredDataRecord? value);

    /// <summary>VC: a viewport coordinate.</summary>
    internal abstract VC ViewportCoordinate(VC? value);

    /// <summary>UI8, UI16, UI32: an unsigned integer; clear text has no width for it.</summary>
    internal abstract long Unsigned(long value, int bits);

    /// <summary>IF8, IF16, IF32: a signed integer; clear text has no width for it.</summary>
    internal abstract int Signed(int value, int bits);

    /// <summary>BS: bits in groups of 16, to the end of the element.</summary>
    internal abstract byte[] Bits(byte[]? value);

    /// <summary>Real number precision; clear text states the smallest number, the largest and the count of
    /// digits.</summary>
    internal abstract Precision RealForm(Precision value);

    /// <summary>
    /// The cells of an array or pattern: for each cell one number, which is a colour index or 0xAARRGGBB.
    /// </summary>
    /// <param name="value">The cells, row by row; unused while reading.</param>
    /// <param name="width">Cells in a row.</param>
    /// <param name="height">Rows.</param>
    /// <param name="precision">Bits of a colour: 0 for the precision of the metafile, 1, 2, 4, 8, 16, 24 or 32.</param>
    /// <param name="withMode">Whether the binary form begins with the cell representation mode; patterns have
    /// none.</param>
    internal abstract int[] Cells(int[]? value, int width, int height, int precision, bool withMode);

    /// <summary>The elements inside this one, to its end.</summary>
    internal abstract List<Command> Commands(List<Command> value);

    /// <summary>CO: a colour, an index or direct as the colour selection mode says.</summary>
    internal CgmColor Color(CgmColor? value)
    {
        if (!State.HasIndexedColors)
        {
            return DirectColor(value);
        }

        if (IsReading)
        {
            return new CgmColor(ColorIndex(0));
        }

        CgmColor color = Needed(value, "a colour");
        if (!color.IsIndexed)
        {
            throw new CgmDataException($"{color} is direct, but the colour selection mode (COLRMODE) is indexed");
        }

        ColorIndex(color.Index);
        return color;
    }

    /// <summary>SS: a size specification, a length in the absolute mode and a real number in all others.</summary>
    internal double Size(double value, SpecificationMode mode) =>
        mode == SpecificationMode.Absolute ? Vdc(value) : Real(value);

    /// <summary>E: an enumerated value as the member of an enum.</summary>
    internal T Enumeration<T>(T value, KeywordTable keywords)
        where T : unmanaged, Enum => FromNumber<T>(Enumeration(ToNumber(value), keywords));

    /// <summary>IX: an index as the member of an enum; no others exist.</summary>
    internal T Index<T>(T value)
        where T : unmanaged, Enum
    {
        T index = IsReading ? FromNumber<T>(Index(0)) : value;
        if (!Enum.IsDefined(index))
        {
            throw new CgmDataException($"the index {ToNumber(index)} is none of {Enum<T>.Values}");
        }

        return IsReading ? index : FromNumber<T>(Index(ToNumber(index)));
    }

    /// <summary>E: OFF or ON.</summary>
    internal bool Flag(bool value) => Enumeration(value ? 1 : 0, OffOn) != 0;

    /// <summary>E: NO or YES.</summary>
    internal bool YesNo(bool value) => Enumeration(value ? 1 : 0, NoYes) != 0;

    /// <summary>A real number that binary files hold as floating point even while others are fixed point (ISO/IEC
    /// 8632-3, 8.4): the scale factors of pictures.</summary>
    internal double FloatingReal(double value)
    {
        Precision real = State.Real;
        State.Real = real == Precision.Floating64 ? real : Precision.Floating32;
        try
        {
            return Real(value);
        }
        finally
        {
            State.Real = real;
        }
    }

    /// <summary>A point on the drawing surface of a device.</summary>
    internal ViewportPoint ViewportPoint(ViewportPoint? value)
    {
        ViewportPoint? point = IsReading ? null : Needed(value, "a viewport point");
        VC first = ViewportCoordinate(point?.First);
        return new ViewportPoint(first, ViewportCoordinate(point?.Second));
    }

    /// <summary>The width of signed integers in bits, one of some.</summary>
    internal int SignedBits(int value, ReadOnlySpan<int> widths) =>
        IsReading ? Width(SignedRange(0), widths) : SignedRange(Width(value, widths));

    /// <summary>The width of unsigned integers in bits, one of some.</summary>
    internal int UnsignedBits(int value, ReadOnlySpan<int> widths) =>
        IsReading ? Width(UnsignedRange(0), widths) : UnsignedRange(Width(value, widths));

    /// <summary>The width of the colours of one cell array, pattern or tile in bits; 0 for that of the
    /// metafile.</summary>
    internal int LocalBits(int value) =>
        IsReading ? Width(LocalRange(0), LocalWidths) : LocalRange(Width(value, LocalWidths));

    /// <summary>Items up to the end of the element.</summary>
    internal List<T> Rest<T>(List<T> values, Func<ParameterExchange, T?, T> one)
    {
        if (!IsReading)
        {
            foreach (T value in Needed(values, "a list"))
            {
                one(this, value);
            }

            return values;
        }

        var read = new List<T>();
        while (HasMore)
        {
            read.Add(one(this, default));
        }

        return read;
    }

    /// <summary>Points up to the end of the element.</summary>
    internal virtual List<CgmPoint> Points(List<CgmPoint> values) => Rest(values, static (x, point) => x.Point(point));

    /// <summary>Items behind their count, an integer.</summary>
    internal List<T> Counted<T>(List<T> values, Func<ParameterExchange, T?, T> one)
    {
        int count = Integer(IsReading ? 0 : Needed(values, "a list").Count);
        return Counted(values, "", count, one);
    }

    /// <summary>Items whose count follows from other parameters.</summary>
    internal List<T> Counted<T>(List<T> values, string name, long count, Func<ParameterExchange, T?, T> one)
    {
        if (IsReading)
        {
            VerifyCount(count);
            var read = new List<T>((int)Math.Min(count, MaxReserved));
            while (read.Count < count)
            {
                VerifyMore(read.Count, count);
                read.Add(one(this, default));
            }

            return read;
        }

        VerifyCount(name, Needed(values, "a list").Count, count);
        return Rest(values, one);
    }

    /// <summary>Two lists whose items alternate: the first of the one, the first of the other and so on, up to the end
    /// of the element or to a count.</summary>
    internal (List<T1> First, List<T2> Second) Pairs<T1, T2>(
        (List<T1> First, List<T2> Second) values,
        (string First, string Second) names,
        int? count,
        Func<ParameterExchange, T1?, T1> first,
        Func<ParameterExchange, T2?, T2> second)
    {
        if (IsReading)
        {
            return ReadPairs(count, first, second);
        }

        int expected = count ?? Needed(values.First, "a list").Count;
        VerifyCount(names.First, Needed(values.First, "a list").Count, expected);
        VerifyCount(names.Second, Needed(values.Second, "a list").Count, expected);
        for (int i = 0; i < expected; i++)
        {
            first(this, values.First[i]);
            second(this, values.Second[i]);
        }

        return values;
    }

    /// <summary>Returns a value that has to be there to be written.</summary>
    internal static T Needed<T>(T? value, string what = "an item of a list")
        where T : class => value ?? throw new CgmDataException($"{what} is missing");

    /// <summary>The width of signed integers; clear text states the smallest and the largest one.</summary>
    protected abstract int SignedRange(int bits);

    /// <summary>The width of unsigned integers; clear text states the largest one.</summary>
    protected abstract int UnsignedRange(int bits);

    /// <summary>The width of the colours of cells; clear text states the largest component.</summary>
    protected abstract int LocalRange(int bits);

    private (List<T1> First, List<T2> Second) ReadPairs<T1, T2>(
        int? count, Func<ParameterExchange, T1?, T1> first, Func<ParameterExchange, T2?, T2> second)
    {
        VerifyCount(count ?? 0);
        (List<T1> First, List<T2> Second) read = ([], []);
        while (count is int announced ? read.First.Count < announced : HasMore)
        {
            VerifyMore(read.First.Count, count ?? long.MaxValue);
            read.First.Add(first(this, default));
            read.Second.Add(second(this, default));
        }

        return read;
    }

    /// <summary>Returns a width that was read or shall be written if files can have it. Clear text states a range
    /// instead; the smallest width that holds it is taken.</summary>
    private int Width(int bits, ReadOnlySpan<int> widths)
    {
        foreach (int width in widths)
        {
            if (width == bits || (IsReading && IsClearText && width > bits))
            {
                return width;
            }
        }

        throw new CgmDataException($"a precision of {bits} bits is none of {string.Join(", ", widths.ToArray())}");
    }

    private void VerifyMore(int count, long announced)
    {
        if (!HasMore)
        {
            throw new CgmDataException($"{announced} items are announced, but only {count} are there");
        }
    }

    private static void VerifyCount(long count)
    {
        if (count is < 0 or > int.MaxValue)
        {
            throw new CgmDataException($"{count} items are announced");
        }
    }

    private static void VerifyCount(string name, int count, long expected)
    {
        if (count != expected)
        {
            throw new CgmDataException($"{PythonName.Lower(name)} has {count} items, but {expected} are needed");
        }
    }

    private static int ToNumber<T>(T value)
        where T : unmanaged, Enum => Unsafe.As<T, int>(ref value);

    private static T FromNumber<T>(int value)
        where T : unmanaged, Enum => Unsafe.As<int, T>(ref value);

    private static class Enum<T>
        where T : unmanaged, Enum
    {
        internal static readonly string Values =
            string.Join(", ", Array.ConvertAll(System.Enum.GetValues<T>(), static one => $"{ToNumber(one)} ({one})"));
    }
}
