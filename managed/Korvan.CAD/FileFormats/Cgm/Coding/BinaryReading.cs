using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Import;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Fills commands from the parameters that a binary reader gives.</summary>
internal sealed class BinaryReading(IBinaryReader reader, CodingState state) : ParameterExchange(state)
{
    internal override bool IsReading => true;

    internal override bool IsClearText => false;

    internal override bool HasMore => reader.HasMore;

    /// <summary>Gives the exchange of a reader. One that is not ours keeps the precisions to itself; then those that a
    /// metafile begins with hold for what depends on them.</summary>
    internal static ParameterExchange Of(IBinaryReader reader) =>
        reader is DefaultBinaryReader ours ? ours.Exchange : new BinaryReading(reader, new CodingState());

    internal override int Integer(int value) => reader.ReadInteger();

    internal override int Index(int value) => reader.ReadIndex();

    internal override int Name(int value) => reader.ReadName();

    internal override int ColorIndex(int value) => reader.ReadColorIndex();

    internal override int Enumeration(int value, string[] words)
    {
        int number = reader.ReadEnumeration();
        return (uint)number < (uint)words.Length
            ? number
            : throw new CgmDataException($"the value {number} is none of 0 to {words.Length - 1} ({string.Join(", ", words)})");
    }

    internal override double Real(double value) => reader.ReadReal();

    internal override double Vdc(double value) => reader.ReadVdc();

    internal override CgmPoint Point(CgmPoint? value) => reader.ReadPoint();

    internal override List<CgmPoint> Points(List<CgmPoint> values)
    {
        return reader is DefaultBinaryReader ours ? ours.ReadPoints() : base.Points(values);
    }

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

    internal override bool IsAtText => false;

    internal override byte[] Bits(byte[]? value) => reader.ReadRest();

    internal override int SignedBits(int value) => reader.ReadInteger();

    internal override int UnsignedBits(int value) => reader.ReadInteger();

    internal override int LocalBits(int value) => reader.ReadInteger();

    internal override Precision RealForm(Precision value)
    {
        (int form, int whole, int fraction) = (reader.ReadEnumeration(), reader.ReadInteger(), reader.ReadInteger());
        return RealForms.Find(form, whole, fraction)
            ?? throw new CgmDataException($"real numbers of the form {form} with {whole} and {fraction} bits do not exist");
    }

    internal override int[] Cells(int[]? value, int width, int height, int precision, bool withMode)
    {
        bool isPacked = !withMode || Enumeration(1, CellFormat.Modes) == CellFormat.Packed;
        var format = CellFormat.Of(State, width, height, precision);
        int start = reader.Position;
        return new CellDecoder(State, format).Decode(reader.ReadRest(), start & 1, isPacked);
    }

    internal override List<Command> Commands(List<Command> value)
    {
        return reader is DefaultBinaryReader ours
            ? ours.ReadInner()
            : throw new CgmDataException("elements inside of elements are read by DefaultBinaryReader alone");
    }
}
