using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>
/// Carries the parameters of a command from a file or to it. A command names its parameters once, in their order, by
/// <c>Radius = x.Vdc(Radius)</c>: while reading, the method gives what the file holds; while writing, it writes what it
/// is given and gives it back. So no encoding can have an order of its own.
/// </summary>
internal abstract class ParameterExchange(CodingState state)
{
    /// <summary>Gets how the parameters are coded at this place.</summary>
    internal CodingState State { get; } = state;

    internal abstract bool IsReading { get; }

    /// <summary>Gets whether words and numbers are exchanged that people can read. Only where the two encodings differ
    /// in more than form does a command ask.</summary>
    internal abstract bool IsClearText { get; }

    /// <summary>Gets, while reading, whether the element has more parameters; while writing it is never so.</summary>
    internal abstract bool HasMore { get; }

    /// <summary>I: a whole number.</summary>
    internal abstract int Integer(int value);

    /// <summary>IX: an index; negative ones are private.</summary>
    internal abstract int Index(int value);

    /// <summary>N: a name, which is a number.</summary>
    internal abstract int Name(int value);

    /// <summary>CI: the number of a colour in the colour table.</summary>
    internal abstract int ColorIndex(int value);

    /// <summary>E: one of a few values; the words stand at the places of their values.</summary>
    internal abstract int Enumeration(int value, string[] words);

    /// <summary>R: a real number.</summary>
    internal abstract double Real(double value);

    /// <summary>VDC: a coordinate or a length in units of the coordinates.</summary>
    internal abstract double Vdc(double value);

    /// <summary>P: a point, two coordinates.</summary>
    internal abstract CgmPoint Point(CgmPoint? value);

    /// <summary>CD: a colour by its components.</summary>
    internal abstract CgmColor DirectColor(CgmColor? value);

    /// <summary>CCO: one component of a direct colour, as the number that the file holds.</summary>
    internal abstract long ColorComponent(long value);

    /// <summary>S, SF: a text.</summary>
    internal abstract string String(string? value);

    /// <summary>D: data that is a text only in form, one character for each byte.</summary>
    internal abstract byte[] Data(byte[]? value);

    /// <summary>SDR: values, each with its type and count.</summary>
    internal abstract StructuredDataRecord Record(StructuredDataRecord? value);

    /// <summary>VC: a coordinate of the device's surface.</summary>
    internal abstract VC ViewportCoordinate(VC? value);

    /// <summary>UI8, UI16, UI32: a number without sign; clear text has no width for it.</summary>
    internal abstract long Unsigned(long value, int bits);

    /// <summary>IF8, IF16, IF32: a number with sign; clear text has no width for it.</summary>
    internal abstract int Signed(int value, int bits);

    /// <summary>E: one of a few values that have no words.</summary>
    internal abstract int BareEnumeration(int value);

    /// <summary>Gets, while clear text is read, whether a text in quotes comes next. Lists of points that binary files
    /// count end there.</summary>
    internal abstract bool IsAtText { get; }

    /// <summary>BS: bits in groups of 16, to the end of the element.</summary>
    internal abstract byte[] Bits(byte[]? value);

    /// <summary>How many bits signed numbers have; clear text tells it by the smallest and the largest number.</summary>
    internal abstract int SignedBits(int value);

    /// <summary>How many bits unsigned numbers have; clear text tells it by the largest number.</summary>
    internal abstract int UnsignedBits(int value);

    /// <summary>How many bits the colours of cells have, 0 for as many as those of the metafile; clear text tells it by
    /// the largest number.</summary>
    internal abstract int LocalBits(int value);

    /// <summary>How real numbers are coded; clear text tells the smallest, the largest and the count of digits.</summary>
    internal abstract Precision RealForm(Precision value);

    /// <summary>
    /// The cells of an array or pattern: for each cell one number, which is an index of a colour or 0xAARRGGBB.
    /// </summary>
    /// <param name="value">The cells, line by line; while reading of no importance.</param>
    /// <param name="width">Cells in a line.</param>
    /// <param name="height">Lines.</param>
    /// <param name="precision">The precision of the colours: 0 for that of the metafile, 1, 2, 4, 8, 16, 24 or 32 bits.</param>
    /// <param name="withMode">Whether the binary form tells first how the cells are packed; patterns have no such word.</param>
    internal abstract int[] Cells(int[]? value, int width, int height, int precision, bool withMode);

    /// <summary>The elements inside this one, to its end.</summary>
    internal abstract List<Command> Commands(List<Command> value);

    /// <summary>CO: a colour by number or components, as the picture selects.</summary>
    internal CgmColor Color(CgmColor? value)
    {
        if (!State.HasIndexedColors)
        {
            return DirectColor(value);
        }

        if (!IsReading && !Needed(value, "a colour").IsIndexed)
        {
            throw new CgmDataException($"{value} stands for itself, but the colours here are those of the table (COLRMODE)");
        }

        int index = ColorIndex(value?.Index ?? 0);
        return IsReading || value is null ? new CgmColor(index) : value;
    }

    /// <summary>SS: a size, which is a length for absolute sizes and a plain number for all others.</summary>
    internal double Size(double value, SpecificationMode mode) => mode == SpecificationMode.Absolute ? Vdc(value) : Real(value);

    /// <summary>One of a few values, as the member of an enum that is counted from 0.</summary>
    internal T Enumeration<T>(T value, string[] words)
        where T : unmanaged, Enum => FromNumber<T>(Enumeration(ToNumber(value), words));

    /// <summary>An index whose values have names.</summary>
    internal T Index<T>(T value)
        where T : unmanaged, Enum => FromNumber<T>(Index(ToNumber(value)));

    /// <summary>A real number that binary files hold as a floating one even while others are fixed (ISO/IEC 8632-3, 8.4):
    /// the scale factors of pictures.</summary>
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

    internal bool Flag(bool value) => Enumeration(value ? 1 : 0, OffOn) != 0;

    /// <summary>Items up to the end of the element.</summary>
    internal List<T> Rest<T>(List<T> values, Func<ParameterExchange, T?, T> one)
    {
        if (!IsReading)
        {
            foreach (T value in values)
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

    /// <summary>A given number of items.</summary>
    internal List<T> Counted<T>(List<T> values, int count, Func<ParameterExchange, T?, T> one)
    {
        if (!IsReading)
        {
            return Rest(values, one);
        }

        if (count < 0)
        {
            throw new CgmDataException($"{count} items are announced");
        }

        var read = new List<T>(Math.Min(count, 4096));
        while (read.Count < count)
        {
            if (!HasMore)
            {
                throw new CgmDataException($"{count} items are announced, but only {read.Count} are there");
            }

            read.Add(one(this, default));
        }

        return read;
    }

    /// <summary>Points up to the end of the element.</summary>
    internal virtual List<CgmPoint> Points(List<CgmPoint> values) => Rest(values, static (x, point) => x.Point(point));

    /// <summary>Gives a value that has to be there to be written.</summary>
    protected static T Needed<T>(T? value, string what)
        where T : class => value ?? throw new CgmDataException($"{what} is missing");

    private static readonly string[] OffOn = ["OFF", "ON"];

    private static int ToNumber<T>(T value)
        where T : unmanaged, Enum => Unsafe.As<T, int>(ref value);

    private static T FromNumber<T>(int value)
        where T : unmanaged, Enum => Unsafe.As<int, T>(ref value);
}
