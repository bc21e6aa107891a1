using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Export;

/// <summary>Hands the parameters of commands to a clear text writer.</summary>
internal sealed class ClearTextWriting(DefaultClearTextWriter writer, CodingState state) : ParameterExchange(state)
{
    internal override bool IsReading => false;

    internal override bool IsClearText => true;

    internal override bool HasMore => false;

    internal override bool IsAtString => false;

    internal override int Integer(int value)
    {
        writer.WriteInteger(value);
        return value;
    }

    internal override int Index(int value) => Integer(value);

    internal override int Name(int value) => Integer(value);

    internal override int ColorIndex(int value) => (int)Unsigned(value, 32);

    internal override int BareEnumeration(int value) => Integer(value);

    internal override int Enumeration(int value, KeywordTable keywords)
    {
        writer.WriteWord(keywords.KeywordOf(value));
        return value;
    }

    internal override double Real(double value)
    {
        writer.WriteReal(value);
        return value;
    }

    internal override double Vdc(double value)
    {
        writer.WriteVdc(value);
        return value;
    }

    internal override CgmPoint Point(CgmPoint? value)
    {
        writer.WritePoint(Needed(value, "a point"));
        return value!;
    }

    internal override CgmColor DirectColor(CgmColor? value) => Put(Needed(value, "a colour"), writer.WriteDirectColor);

    internal override long ColorComponent(long value) => Unsigned(value, 32);

    internal override string String(string? value) => Put(Needed(value, "a string"), writer.WriteString);

    internal override byte[] Data(byte[]? value) => Put(Needed(value, "data"), writer.WriteData);

    internal override StructuredDataRecord Record(StructuredDataRecord? value) =>
        Put(Needed(value, "a record"), writer.WriteStructuredData);

    internal override VC ViewportCoordinate(VC? value)
    {
        if (State.ViewportMode == DeviceViewportSpecificationMode.Mode.FractionOfDrawingSurface)
        {
            writer.WriteReal(Needed(value, "a coordinate").Value);
        }
        else
        {
            writer.WriteInteger(NumberRange.Whole(Needed(value, "a coordinate").Value));
        }

        return value!;
    }

    internal override long Unsigned(long value, int bits)
    {
        NumberRange.Verify(value, NumberRange.Unsigned(bits), bits);
        WriteNumber(value);
        return value;
    }

    internal override int Signed(int value, int bits)
    {
        NumberRange.Verify(value, NumberRange.Signed(bits), bits);
        return Integer(value);
    }

    internal override byte[] Bits(byte[]? value)
    {
        byte[] bits = Needed(value, "bits");
        for (int i = 0; i < bits.Length; i += 2)
        {
            // Integers of 16 bits each; the last is padded.
            int group = (bits[i] << 8) | (i + 1 < bits.Length ? bits[i + 1] : 0);
            writer.WriteWord($"16#{group:X4}");
        }

        return bits;
    }

    protected override int SignedRange(int value)
    {
        (long lowest, long highest) = NumberRange.Signed(value);
        WriteNumber(lowest);
        WriteNumber(highest);
        return value;
    }

    protected override int UnsignedRange(int value) => LocalRange(value);

    protected override int LocalRange(int value)
    {
        WriteNumber(NumberRange.Unsigned(value).Highest);
        return value;
    }

    internal override Precision RealForm(Precision value)
    {
        RealForms.Entry form = RealForms.Of(value);
        writer.WriteReal(form.Smallest);
        writer.WriteReal(form.Largest);
        writer.WriteInteger(form.Digits);
        return value;
    }

    internal override int[] Cells(int[]? value, int width, int height, int precision, bool withMode)
    {
        var format = CellFormat.Of(State, width, height, precision);
        int[] cells = Needed(value, "the array of cells");
        if (cells.Length != format.Count)
        {
            throw new CgmDataException($"there are {cells.Length} colours for {width} by {height} cells");
        }

        var colors = new ColorCoding(State, format);
        Span<long> components = stackalloc long[format.Components];
        foreach (int cell in cells)
        {
            if (format.IsIndexed)
            {
                components[0] = cell;
            }
            else
            {
                colors.FromArgb(cell, components);
            }

            foreach (long component in components)
            {
                Unsigned(component, format.Bits);
            }
        }

        return cells;
    }

    internal override List<Command> Commands(List<Command> value)
    {
        writer.EndElement();
        writer.WriteInner(Needed(value, "a list"));
        writer.BeginElement("ENDMFDEFAULTS");
        return value;
    }

    private static T Put<T>(T value, Action<T> write)
    {
        write(value);
        return value;
    }

    private void WriteNumber(long value) => writer.WriteWord(value.ToString(CultureInfo.InvariantCulture));
}
