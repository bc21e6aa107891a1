using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Export;

/// <summary>Hands the parameters of commands to a binary writer.</summary>
internal sealed class BinaryWriting(DefaultBinaryWriter writer, CodingState state) : ParameterExchange(state)
{
    internal override bool IsReading => false;

    internal override bool IsClearText => false;

    internal override bool HasMore => false;

    internal override bool IsAtString => false;

    internal override int Integer(int value)
    {
        writer.WriteInteger(value);
        return value;
    }

    internal override int Index(int value)
    {
        writer.WriteIndex(value);
        return value;
    }

    internal override int Name(int value) => Put(value, writer.WriteName);

    internal override int ColorIndex(int value)
    {
        writer.WriteColorIndex(value);
        return value;
    }

    internal override int BareEnumeration(int value) => Put(value, writer.WriteEnumeration);

    internal override int Enumeration(int value, KeywordTable keywords) => BareEnumeration(keywords.Verify(value));

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

    internal override long ColorComponent(long value) => Put(value, writer.WriteColorComponent);

    internal override string String(string? value) => Put(Needed(value, "a string"), writer.WriteString);

    internal override byte[] Data(byte[]? value) => Put(Needed(value, "data"), writer.WriteData);

    internal override StructuredDataRecord Record(StructuredDataRecord? value) =>
        Put(Needed(value, "a record"), writer.WriteStructuredData);

    internal override VC ViewportCoordinate(VC? value) =>
        Put(Needed(value, "a coordinate"), writer.WriteViewportCoordinate);

    internal override byte[] Bits(byte[]? value) => Put(Needed(value, "bits"), writer.WriteBytes);

    protected override int SignedRange(int value) => Put(value, writer.WriteInteger);

    protected override int UnsignedRange(int value) => Put(value, writer.WriteInteger);

    protected override int LocalRange(int value) => Put(value, writer.WriteInteger);

    internal override long Unsigned(long value, int bits)
    {
        writer.WriteUnsigned(value, bits);
        return value;
    }

    internal override int Signed(int value, int bits)
    {
        NumberRange.Verify(value, NumberRange.Signed(bits), bits);
        writer.WriteUnsigned(value & ((1L << bits) - 1), bits);
        return value;
    }

    internal override Precision RealForm(Precision value)
    {
        RealForms.Entry form = RealForms.Of(value);
        writer.WriteEnumeration(form.Form);
        writer.WriteInteger(form.Whole);
        writer.WriteInteger(form.Fraction);
        return value;
    }

    internal override int[] Cells(int[]? value, int width, int height, int precision, bool withMode)
    {
        var format = CellFormat.Of(State, width, height, precision);
        var encoder = new CellEncoder(State, format, Needed(value, "the array of cells"));
        bool isPacked = !withMode || !encoder.IsShorterInRuns;
        if (withMode)
        {
            writer.WriteEnumeration(isPacked ? CellFormat.Packed : CellFormat.RunLength);
        }

        writer.WriteBytes(encoder.Encode(isPacked, writer.Position & 1));
        return value!;
    }

    internal override List<Command> Commands(List<Command> value) =>
        Put(Needed(value, "a list"), writer.WriteInner);

    private static T Put<T>(T value, Action<T> write)
    {
        write(value);
        return value;
    }
}
