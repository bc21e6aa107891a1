using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Carries fields in the order of their group codes, in the coding that their types have: integers of 16 bits
/// BS, of 32 bits BL, numbers BD, counts BL. Old releases leave out what came later, but nothing at its
/// default.</summary>
internal sealed class DeclaredBits(BitExchange bits) : ObjectExchange
{

    // The fields that all entities have are packed in their own way before those of the class.
    private bool _isCommon;

    internal override int Release => bits.Release;

    internal override bool IsReading => bits.IsReading;

    internal override void BeginSubclass(string name) => _isCommon = name == "AcDbEntity";

    internal override void EndSubclass(CadBaseObject target, string name) => _isCommon = false;

    internal override bool Includes(int since, bool isSet) => !_isCommon && Release >= since;

    internal override bool HasItem(int code, bool isSet) => throw new NotSupportedException(
        $"The list of group code {code} has no count; its class has to state its coding.");

    internal override bool Bool(int code, bool value) => _isCommon ? value : bits.Bit(value);

    internal override short Int16(int code, short value) => _isCommon ? value : (short)bits.BitShort(value);

    internal override int Int32(int code, int value) => _isCommon ? value : bits.BitLong(value);

    internal override long Int64(int code, long value) => _isCommon ? value : bits.BitLongLong(value);

    internal override int Enum(int code, int value) =>
        _isCommon ? value : code is >= 90 and < 100 ? bits.BitLong(value) : bits.BitShort(value);

    internal override short Color(int code, short value) =>
        _isCommon ? value : (short)bits.Color(value, -1, "").Index;

    internal override double Double(int code, double value) => _isCommon ? value : bits.BitDouble(value);

    internal override double Angle(int code, double value) => _isCommon ? value : bits.Angle(value);

    internal override void Point(int code, Cad2DPoint point)
    {
        if (!_isCommon)
        {
            bits.RawPoint2(point);
        }
    }

    internal override void Point(int code, Cad3DPoint point)
    {
        if (!_isCommon)
        {
            bits.Point3(point);
        }
    }

    internal override string Text(int code, string value) => _isCommon ? value : bits.Text(value);

    internal override string Name(int code, SymbolTable table, string value) =>
        _isCommon ? value : bits.Name(table, value);

    internal override string Handle(int code, HandleRole role, string value) =>
        _isCommon ? value : bits.Handle(role, value);

    internal override ulong Handle(int code, HandleRole role, ulong value) =>
        _isCommon ? value : bits.Handle(role, value);

    internal override byte[] Binary(int code, byte[] value) => _isCommon ? value : bits.Block(value);

    internal override int Count(int code, int count) =>
        code is >= 70 and < 80 ? bits.CountShort(count) : bits.CountLong(count);

    internal override string LongText(int pieceCode, int lastCode, string value) => bits.Text(value);

    internal override void Lines(List<string> lines) => Items(1, lines, bits.CountLong(lines.Count));

    internal override void Brace(int code, string text)
    {
    }

    internal override void Tags(IList<CadCodeValue> tags) => throw new NotSupportedException(
        "Tags have no coding of their own; their class has to state it.");
}
