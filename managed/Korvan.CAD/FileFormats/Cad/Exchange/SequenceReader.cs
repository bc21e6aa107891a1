using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Passes the fields of a subclass to an object in the order that its class declares. A field that is not next
/// in the file is missing; what is left at the end is kept.</summary>
internal sealed class SequenceReader : ObjectExchange
{
    /// <summary>The code under which tags of any group codes are counted.</summary>
    internal const int AnyCode = -2;

    private const int SubclassMarker = 100;
    private const int EmbeddedObject = 101;
    private const int Group = 102;
    private const int Application = 1001;

    private readonly FieldReader _reader;
    private readonly SequenceLayout _layout = new();
    private bool _ended;
    private bool _exhausted;
    private readonly FieldCounter _fields = new();
    private FieldKey _lastRead = FieldKey.None;
    private FieldKey? _optional;

    private SequenceReader(FieldReader reader)
    {
        _reader = reader;
        FindEnd();
    }

    internal override int Release => int.MaxValue;

    internal override bool IsReading => true;

    /// <summary>Reads the fields of the current subclass from the current one on.</summary>
    /// <returns>Whether they were read; what follows a sequence in its subclass is not.</returns>
    internal static bool Read(CadBaseObject target, FieldReader reader, Action<ObjectExchange> exchange)
    {
        if (reader.HasReadSequence)
        {
            return false;
        }

        reader.HasReadSequence = true;
        SequenceReader fields = new(reader);
        exchange(fields);
        fields.Finish(target);
        return true;
    }

    internal override void BeginSubclass(string name)
    {
    }

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => isSet;

    internal override bool Has(int code, int since, bool isSet)
    {
        if (IsNext(code))
        {
            _optional = _fields.Peek(code);
            return true;
        }

        _fields.Next(code);
        _optional = null;
        return false;
    }

    internal override bool HasItem(int code, bool isSet) => IsNext(code);

    internal override bool Bool(int code, bool value) => Value(code, value, static reader => reader.GetInt() != 0);

    internal override short Int16(int code, short value) => Value(code, value, static reader => reader.GetShort());

    internal override int Int32(int code, int value) => Value(code, value, static reader => reader.GetInt());

    internal override long Int64(int code, long value) => Value(code, value, static reader => reader.GetLong());

    internal override int Enum(int code, int value) => Int32(code, value);

    internal override short Color(int code, short value) => Int16(code, value);

    internal override double Double(int code, double value) =>
        Value(code, value, static reader => reader.GetDouble());

    internal override double Angle(int code, double value) => Value(code, value, static reader => reader.GetAngle());

    internal override void Point(int code, Cad2DPoint point)
    {
        point.X = Double(code, point.X);
        point.Y = Double(code + 10, point.Y);
    }

    internal override void Point(int code, Cad3DPoint point)
    {
        point.X = Double(code, point.X);
        point.Y = Double(code + 10, point.Y);
        point.Z = Double(code + 20, point.Z);
    }

    internal override string Text(int code, string value) => Value(code, value, static reader => reader.GetString());

    internal override string Name(int code, SymbolTable table, string value) => Text(code, value);

    internal override string Handle(int code, HandleRole role, string value) =>
        Value(code, value, static reader => reader.GetHandleText());

    internal override ulong Handle(int code, HandleRole role, ulong value) =>
        Value(code, value, static reader => reader.GetHandle());

    internal override byte[] Binary(int code, byte[] value)
    {
        byte[] bytes = [];
        return Run(code, value, () => bytes = _reader.AppendBinary(bytes)) ? bytes : value;
    }

    internal override int Count(int code, int count) => Value(code, count, static reader => reader.GetCount());

    internal override string LongText(int pieceCode, int lastCode, string value)
    {
        FieldKey field = _fields.Peek(pieceCode);
        if (IsNext(lastCode))
        {
            _fields.Next(pieceCode);
            return Value(field, lastCode, value, static reader => reader.GetString());
        }

        List<string> chunks = [];
        if (!Run(pieceCode, value, () => chunks.Add(_reader.GetString())))
        {
            return value;
        }

        if (IsNext(lastCode))
        {
            chunks.Add(_reader.GetString());
            Advance();
        }

        string text = string.Concat(chunks);
        _layout.AddChunks(field, text, [.. chunks.ConvertAll(static chunk => chunk.Length)]);
        return text;
    }

    internal override void Lines(List<string> lines)
    {
        const int first = 1;
        const int further = 3;
        FieldKey field = _fields.Next(first);
        while (IsNext(first) || (IsNext(further) && lines.Count > 0))
        {
            if (_reader.Code == first)
            {
                lines.Add(_reader.GetString());
            }
            else
            {
                lines[^1] += _reader.GetString();
            }

            _lastRead = field;
            Advance();
        }
    }

    internal override void Brace(int code, string text)
    {
        FieldKey field = _fields.Next(code);
        if (IsNext(code) && _reader.GetName() == text)
        {
            _lastRead = field;
            Advance();
        }
        else
        {
            _layout.AddMissing(field, text);
        }
    }

    internal override void Tags(IList<CadCodeValue> tags)
    {
        for (FieldKey field = _fields.Next(AnyCode); !_ended; Advance())
        {
            tags.Add(_reader.ToCodeValue());
            _lastRead = field;
        }
    }

    private bool Run(int code, object missing, Action read)
    {
        FieldKey field = _fields.Next(code);
        if (!IsNext(code))
        {
            _layout.AddMissing(field, missing);
            return false;
        }

        for (; IsNext(code); Advance())
        {
            read();
        }

        _lastRead = field;
        _optional = null;
        return true;
    }

    private T Value<T>(int code, T present, Func<FieldReader, T> read)
        where T : notnull => Value(_fields.Next(code), code, present, read);

    private T Value<T>(FieldKey field, int code, T present, Func<FieldReader, T> read)
        where T : notnull
    {
        FieldKey? optional = _optional;
        _optional = null;
        if (!IsNext(code))
        {
            _layout.AddMissing(field, present);
            return present;
        }

        T value = read(_reader);
        if (optional is { } key && EqualityComparer<T>.Default.Equals(value, present))
        {
            _layout.AddPresent(key);
        }

        _lastRead = field;
        Advance();
        return value;
    }

    private bool IsNext(int code) => !_ended && _reader.Code == code;

    private void Advance()
    {
        if (_reader.Next())
        {
            FindEnd();
            return;
        }

        (_ended, _exhausted) = (true, true);
    }

    private void FindEnd() => _ended = _reader.Code is 0 or SubclassMarker or EmbeddedObject or Group or Application;

    private void Finish(CadBaseObject target)
    {
        if (!_ended)
        {
            _layout.End = _lastRead;
        }

        for (; !_ended; Advance())
        {
            KeptTags.Of(target).Tags.Add(new KeptTag(_reader.Subclass ?? "", _reader.ToCodeValue()));
        }

        if (!_layout.IsEmpty)
        {
            KeptTags.Of(target).Layouts[_reader.Subclass ?? ""] = _layout;
        }

        if (!_exhausted)
        {
            _reader.Unread();
        }
    }
}
