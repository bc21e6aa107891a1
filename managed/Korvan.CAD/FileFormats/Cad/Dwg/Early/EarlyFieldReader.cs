using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Exchange;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Gives the fields of one record, with angles in degrees, to the object that is made of it.</summary>
/// <param name="bytes">Where the record is read from, for messages.</param>
internal sealed class EarlyFieldReader(EarlyBytes bytes) : FieldReader
{
    private readonly List<Value> _values = [];
    private int _next;

    /// <summary>Gets the number of values.</summary>
    internal int Count => _values.Count;

    internal void Add(int code, double number) => _values.Add(new Value(code, number, null));

    internal void Add(int code, string text) => _values.Add(new Value(code, 0, text));

    /// <summary>Returns an integer of the record before an object is made of it.</summary>
    internal int Peek(int code)
    {
        int index = _values.FindIndex(value => value.Code == code);
        return index < 0 ? 0 : (int)_values[index].Number;
    }

    /// <summary>Returns a string of the record before an object is made of it.</summary>
    internal string PeekText(int code) => _values.Find(value => value.Code == code).Text ?? "";

    /// <summary>Gives all fields to an object; it keeps those that its class does not have.</summary>
    internal void GiveTo(CadBaseObject target)
    {
        _next = 0;
        EnterSubclass(null);
        while (Next())
        {
            if (Code > 0 && !target.ReadField(Code, this))
            {
                KeptTags.Of(target).Tags.Add(new KeptTag(null, ToCodeValue()));
            }
        }
    }

    internal override bool Next()
    {
        if (_next == _values.Count)
        {
            return false;
        }

        Code = _values[_next++].Code;
        return true;
    }

    internal override void Unread() => _next--;

    internal override double GetDouble() => Current.Number;

    internal override double GetAngle() => Current.Number;

    internal override int GetInt() => (int)Current.Number;

    internal override short GetShort() => (short)Current.Number;

    internal override long GetLong() => (long)Current.Number;

    internal override string GetString() => Current.Text ?? Text(Current.Number);

    internal override string GetName() => GetString().Trim();

    internal override ulong GetHandle() => (ulong)Current.Number;

    internal override string GetHandleText() => GetHandle().ToString("X", CultureInfo.InvariantCulture);

    internal override int GetCount() => GetInt();

    internal override byte[] AppendBinary(byte[] before) => throw new NotSupportedException();

    internal override CadCodeValue ToCodeValue() => new(Code, GetString());

    internal override ImageLoadException BadValue(string cause) =>
        bytes.Fail(LoadDefectCode.BadValue, bytes.Position, cause);

    /// <summary>Returns a number as text files have it.</summary>
    internal static string Text(double number) => number.ToString("R", CultureInfo.InvariantCulture);

    private Value Current => _values[_next - 1];

    private readonly record struct Value(int Code, double Number, string? Text);
}
