using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes the fields of objects as tags.</summary>
internal sealed class DxfFieldWriter(DxfTagWriter writer) : ObjectExchange
{
    internal override int Release => writer.Release;

    internal override bool IsReading => false;

    internal override void BeginSubclass(string name) => writer.WriteSubclass(name);

    internal override void EndSubclass(CadBaseObject target, string name) => writer.WriteKept(target, name);

    internal override bool Includes(int since, bool isSet) => isSet && writer.Release >= since;

    internal override bool Bool(int code, bool value)
    {
        writer.Write(code, value ? 1 : 0);
        return value;
    }

    internal override short Int16(int code, short value)
    {
        writer.Write(code, value);
        return value;
    }

    internal override int Int32(int code, int value)
    {
        writer.Write(code, value);
        return value;
    }

    internal override long Int64(int code, long value)
    {
        writer.Write(code, value);
        return value;
    }

    internal override int Enum(int code, int value) => Int32(code, value);

    internal override short Color(int code, short value) => Int16(code, value);

    internal override double Double(int code, double value)
    {
        writer.Write(code, value);
        return value;
    }

    internal override double Angle(int code, double value) => Double(code, value);

    internal override void Point(int code, Cad2DPoint point) => writer.Write(code, point);

    internal override void Point(int code, Cad3DPoint point) => writer.Write(code, point);

    internal override string Text(int code, string value)
    {
        writer.Write(code, value);
        return value;
    }

    internal override string Name(int code, SymbolTable table, string value) => Text(code, value);

    internal override string Handle(int code, HandleRole role, string value) => Text(code, value);

    internal override ulong Handle(int code, HandleRole role, ulong value)
    {
        writer.WriteHandle(code, value);
        return value;
    }

    internal override byte[] Binary(int code, byte[] value)
    {
        writer.Write(code, value);
        return value;
    }

    internal override int Count(int code, int count) => code == 0 ? count : Int32(code, count);

    internal override string LongText(int pieceCode, int lastCode, string value)
    {
        writer.WriteLongText(pieceCode, lastCode, value);
        return value;
    }

    internal override void Lines(List<string> lines) => writer.WriteChunks(lines);

    internal override void Brace(int code, string text) => writer.Write(code, text);

    internal override void Tags(IList<CadCodeValue> tags) => tags.ForEach(writer.Write);
}
