using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Commands;

namespace Korvan.CAD.FileFormats.Cgm.Import;

/// <summary>Fills commands from the parameters of a binary reader.</summary>
internal sealed class BinaryReading(DefaultBinaryReader reader, CodingState state) : ParameterExchange(state)
{
    internal override bool IsReading => true;

    internal override bool IsClearText => false;

    internal override bool HasMore => reader.HasMore;

    internal override int Integer(int value) => reader.ReadInteger();

    internal override int Index(int value) => reader.ReadIndex();

    internal override int Name(int value) => reader.ReadName();

    internal override int ColorIndex(int value) => reader.ReadColorIndex();

    internal override int Enumeration(int value, KeywordTable keywords) => keywords.Verify(reader.ReadEnumeration());

    internal override double Real(double value) => reader.ReadReal();

    internal override double Vdc(double value) => reader.ReadVdc();

    internal override CgmPoint Point(CgmPoint? value) => reader.ReadPoint();

    internal override List<CgmPoint> Points(List<CgmPoint> values) => reader.ReadPoints();

    internal override CgmColor DirectColor(CgmColor? value) => reader.ReadDirectColor();

    internal override long ColorComponent(long value) => reader.ReadColorComponent();

    internal override string String(string? value) => reader.ReadString();

    internal override byte[] Data(byte[]? value) => reader.ReadData();

    internal override StructuredDataRecord Record(StructuredDataRecord? value) => reader.ReadStructuredData();

    internal override VC ViewportCoordinate(VC? value) => reader.ReadViewportCoordinate();

    internal override long Unsigned(long value, int bits) => reader.ReadUnsigned(bits);

    internal override int Signed(int value, int bits)
    {
        uint raw = (uint)reader.ReadUnsigned(bits);
        return (int)(raw << (32 - bits)) >> (32 - bits);
    }

    internal override int BareEnumeration(int value) => reader.ReadEnumeration();

    internal override bool IsAtString => false;

    internal override byte[] Bits(byte[]? value) => reader.ReadRest();

    protected override int SignedRange(int value) => reader.ReadInteger();

    protected override int UnsignedRange(int value) => reader.ReadInteger();

    protected override int LocalRange(int value) => reader.ReadInteger();

    internal override Precision RealForm(Precision value)
    {
        (int form, int whole, int fraction) = (reader.ReadEnumeration(), reader.ReadInteger(), reader.ReadInteger());
        return RealForms.Find(form, whole, fraction)
            ?? throw new CgmDataException(
                $"there is no precision of real numbers of the form {form} with {whole} and {fraction} bits");
    }

    internal override int[] Cells(int[]? value, int width, int height, int precision, bool withMode)
    {
        bool isPacked = !withMode || CellFormat.Modes.Verify(reader.ReadEnumeration()) == CellFormat.Packed;
        var format = CellFormat.Of(State, width, height, precision);
        int start = reader.Position;
        return new CellDecoder(State, format).Decode(reader.ReadRest(), start & 1, isPacked);
    }

    internal override List<Command> Commands(List<Command> value) => reader.ReadInner();
}
