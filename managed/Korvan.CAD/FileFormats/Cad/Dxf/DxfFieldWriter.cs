using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes the fields of objects as tags.</summary>
internal sealed class DxfFieldWriter(DxfTagWriter writer) : ObjectExchange
{
    private Dictionary<string, SequenceLayout>? _layouts;
    private SequenceLayout? _layout;
    private readonly FieldCounter _fields = new();
    private bool _hasEnded;

    internal override int Release => writer.Release;

    internal override bool IsReading => false;

    internal override bool HasWholeSplines => true;

    internal override ModelerForm Modeler =>
        writer.Release < ModelerSection.Since ? ModelerForm.Text : ModelerForm.Separate;

    /// <summary>Begins an object.</summary>
    /// <param name="layouts">How its fields were in the file that it was read from, by subclass; null where they were
    /// as its class writes them.</param>
    internal void Begin(Dictionary<string, SequenceLayout>? layouts)
    {
        _layouts = layouts;
        _layout = null;
    }

    internal override void BeginSubclass(string name)
    {
        // The fields of objects without subclasses follow no marker.
        if (name.Length > 0)
        {
            writer.WriteSubclass(name);
        }

        _layout = _layouts?.GetValueOrDefault(name);
        _fields.Clear();
        _hasEnded = _layout?.End == FieldKey.None;
    }

    internal override void EndSubclass(CadBaseObject target, string name)
    {
        _layout = null;
        writer.WriteKept(target, name);
        if (name == "AcDbEntity" && writer.HasSubclasses)
        {
            writer.WriteGraphics(target);
        }
    }

    internal override bool Includes(int since, bool isSet) => isSet && writer.Release >= since;

    internal override bool Has(int code, int since, bool isSet)
    {
        bool includes = Includes(since, isSet);
        if (_layout is null)
        {
            return includes;
        }

        if (!_hasEnded && _layout.Includes(_fields.Peek(code), includes))
        {
            return true;
        }

        Pass(_fields.Next(code));
        return false;
    }

    internal override bool Bool(int code, bool value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value ? 1 : 0);
        }

        return value;
    }

    internal override short Int16(int code, short value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value);
        }

        return value;
    }

    internal override int Int32(int code, int value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value);
        }

        return value;
    }

    internal override long Int64(int code, long value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value);
        }

        return value;
    }

    internal override int Enum(int code, int value) => Int32(code, value);

    internal override short Color(int code, short value) => Int16(code, value);

    internal override double Double(int code, double value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value);
        }

        return value;
    }

    internal override double Angle(int code, double value) => Double(code, value);

    internal override void Point(int code, Cad2DPoint point)
    {
        Double(code, point.X);
        Double(code + 10, point.Y);
    }

    internal override void Point(int code, Cad3DPoint point)
    {
        Double(code, point.X);
        Double(code + 10, point.Y);
        Double(code + 20, point.Z);
    }

    internal override string Text(int code, string value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value);
        }

        return value;
    }

    internal override string Name(int code, SymbolTable table, string value) => Text(code, value);

    internal override string Handle(int code, HandleRole role, string value) => Text(code, value);

    internal override ulong Handle(int code, HandleRole role, ulong value)
    {
        if (Writes(code, value))
        {
            writer.WriteHandle(code, value);
        }

        return value;
    }

    internal override byte[] Binary(int code, byte[] value)
    {
        if (Writes(code, value))
        {
            writer.Write(code, value);
        }

        return value;
    }

    internal override int Count(int code, int count) => code == 0 ? count : Int32(code, count);

    internal override string LongText(int pieceCode, int lastCode, string value)
    {
        int[]? chunks = _layout?.ChunksOf(_fields.Peek(pieceCode), value);
        if (Writes(pieceCode, value))
        {
            WriteLongText(pieceCode, lastCode, value, chunks);
        }

        return value;
    }

    internal override void Lines(List<string> lines)
    {
        if (Writes(1, lines))
        {
            writer.WriteChunks(lines);
        }
    }

    internal override void Brace(int code, string text) => Text(code, text);

    internal override void Tags(IList<CadCodeValue> tags)
    {
        if (Writes(SequenceReader.AnyCode, tags))
        {
            tags.ForEach(writer.Write);
        }
    }

    private void WriteLongText(int pieceCode, int lastCode, string value, int[]? chunks)
    {
        if (chunks is null)
        {
            writer.WriteLongText(pieceCode, lastCode, value);
            return;
        }

        int start = 0;
        for (int i = 0; i < chunks.Length; i++)
        {
            writer.Write(i < chunks.Length - 1 ? pieceCode : lastCode, value.Substring(start, chunks[i]));
            start += chunks[i];
        }
    }

    // The value is boxed only where the file had other fields than the class writes.
    private bool Writes<T>(int code, T value)
    {
        if (_layout is null)
        {
            return true;
        }

        FieldKey field = _fields.Next(code);
        bool writes = !_hasEnded && _layout.Writes(field, value);
        Pass(field);
        return writes;
    }

    // What follows the last field that was understood is kept as it was.
    private void Pass(FieldKey field) => _hasEnded |= field == _layout!.End;
}
