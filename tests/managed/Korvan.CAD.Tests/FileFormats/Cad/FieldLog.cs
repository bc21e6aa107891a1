using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.Tests.FileFormats.Cad;

/// <summary>One field: its group code, its kind, its value, and what a handle or name refers to.</summary>
internal sealed record LoggedField(int Code, string Kind, object Value, object? Target = null);

/// <summary>A format of its own: the fields of an object as they are declared, in memory.</summary>
internal sealed class FieldLog(int release) : ObjectExchange
{
    internal const string Marker = "Subclass";

    internal List<LoggedField> Fields { get; } = [];

    internal override int Release => release;

    internal override bool IsReading => false;

    internal static List<LoggedField> Of(CadBaseObject item, int release = 2018)
    {
        FieldLog log = new(release);
        item.Exchange(log);
        return log.Fields;
    }

    internal override void BeginSubclass(string name) => Fields.Add(new LoggedField(100, Marker, name));

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => isSet && release >= since;

    internal override bool Bool(int code, bool value) => Add(code, "Bool", value);

    internal override short Int16(int code, short value) => Add(code, "Int16", value);

    internal override int Int32(int code, int value) => Add(code, "Int32", value);

    internal override long Int64(int code, long value) => Add(code, "Int64", value);

    internal override int Enum(int code, int value) => Add(code, "Enum", value);

    internal override short Color(int code, short value) => Add(code, "Color", value);

    internal override double Double(int code, double value) => Add(code, "Double", value);

    internal override double Angle(int code, double value) => Add(code, "Angle", value);

    internal override void Point(int code, Cad2DPoint point)
    {
        Add(code, "Point", point.X);
        Add(code + 10, "Point", point.Y);
    }

    internal override void Point(int code, Cad3DPoint point)
    {
        Point(code, new Cad2DPoint(point.X, point.Y));
        Add(code + 20, "Point", point.Z);
    }

    internal override string Text(int code, string value) => Add(code, "Text", value);

    internal override string Name(int code, SymbolTable table, string value) => Add(code, "Name", value, table);

    internal override string Handle(int code, HandleRole role, string value) => Add(code, "Handle", value, role);

    internal override ulong Handle(int code, HandleRole role, ulong value) => Add(code, "Handle", value, role);

    internal override byte[] Binary(int code, byte[] value)
    {
        Add(code, "Binary", Convert.ToHexString(value));
        return value;
    }

    internal override int Count(int code, int count) => code == 0 ? count : Add(code, "Count", count);

    internal override string LongText(int pieceCode, int lastCode, string value) => Add(lastCode, "Text", value);

    internal override void Lines(List<string> lines) => lines.ForEach(line => Add(1, "Text", line));

    internal override void Brace(int code, string text) => Add(code, "Text", text);

    internal override void Tags(IList<CadCodeValue> tags) => tags.ForEach(tag => Add(tag.Attribute, "Tag", tag.Value));

    private T Add<T>(int code, string kind, T value, object? target = null)
        where T : notnull
    {
        Fields.Add(new LoggedField(code, kind, value, target));
        return value;
    }
}

/// <summary>Gives logged fields to an object of the same class, as a reader of a file does.</summary>
internal sealed class FieldLogReader(List<LoggedField> fields) : FieldReader
{
    private int _next;

    private object Value => fields[_next - 1].Value;

    /// <summary>Reads all fields; gives those that the object does not have.</summary>
    internal List<LoggedField> ReadInto(CadBaseObject item)
    {
        List<LoggedField> unknown = [];
        while (Next())
        {
            LoggedField field = fields[_next - 1];
            if (field.Kind == FieldLog.Marker)
            {
                EnterSubclass((string)field.Value == CadInsertObject.GridMarker ? CadInsertObject.SingleMarker
                    : (string)field.Value);
            }
            else if (!item.ReadField(field.Code, this))
            {
                unknown.Add(field);
            }
        }

        return unknown;
    }

    internal override bool Next()
    {
        if (_next >= fields.Count)
        {
            _next = fields.Count + 1;
            return false;
        }

        Code = fields[_next++].Code;
        return true;
    }

    // After the last field there is none to give again.
    internal override void Unread() => _next -= _next > fields.Count ? 0 : 1;

    internal override double GetDouble() => Convert.ToDouble(Value, CultureInfo.InvariantCulture);

    internal override double GetAngle() => GetDouble();

    internal override int GetInt() => Convert.ToInt32(Value, CultureInfo.InvariantCulture);

    internal override short GetShort() => Convert.ToInt16(Value, CultureInfo.InvariantCulture);

    internal override long GetLong() => Convert.ToInt64(Value, CultureInfo.InvariantCulture);

    internal override string GetString() => Convert.ToString(Value, CultureInfo.InvariantCulture)!;

    internal override string GetName() => GetString();

    internal override ulong GetHandle() => Value as ulong? ?? Convert.ToUInt64((string)Value, 16);

    internal override string GetHandleText() => GetString();

    internal override int GetCount() => GetInt();

    internal override byte[] AppendBinary(byte[] before) => [.. before, .. Convert.FromHexString((string)Value)];

    internal override CadCodeValue ToCodeValue() => new(Code, GetString());

    internal override ImageLoadException BadValue(string cause) => new(cause);
}
