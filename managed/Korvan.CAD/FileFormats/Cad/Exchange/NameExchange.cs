using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Visits the names by which objects refer to records of symbol tables, and replaces them.</summary>
/// <param name="replace">Returns the name to keep for a name in a table.</param>
internal sealed class NameExchange(Func<SymbolTable, string, string> replace) : ObjectExchange
{
    internal override int Release => int.MaxValue;

    internal override bool IsReading => false;

    internal override void BeginSubclass(string name)
    {
    }

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => isSet;

    internal override bool Bool(int code, bool value) => value;

    internal override short Int16(int code, short value) => value;

    internal override int Int32(int code, int value) => value;

    internal override long Int64(int code, long value) => value;

    internal override int Enum(int code, int value) => value;

    internal override short Color(int code, short value) => value;

    internal override double Double(int code, double value) => value;

    internal override double Angle(int code, double value) => value;

    internal override void Point(int code, Cad2DPoint point)
    {
    }

    internal override void Point(int code, Cad3DPoint point)
    {
    }

    internal override string Text(int code, string value) => value;

    internal override string Name(int code, SymbolTable table, string value) => replace(table, value);

    internal override string Handle(int code, HandleRole role, string value) => value;

    internal override ulong Handle(int code, HandleRole role, ulong value) => value;

    internal override byte[] Binary(int code, byte[] value) => value;

    internal override int Count(int code, int count) => count;

    internal override string LongText(int pieceCode, int lastCode, string value) => value;

    internal override void Lines(List<string> lines)
    {
    }

    internal override void Brace(int code, string text)
    {
    }

    internal override void Tags(IList<CadCodeValue> tags)
    {
    }
}
