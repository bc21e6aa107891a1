using System.Collections.Generic;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Keeps the fields of one object in memory and gives them to another one of the same class.</summary>
/// <param name="subject">What is copied, for messages.</param>
internal sealed class MemoryExchange(string subject) : ObjectExchange
{
    // Later than any release: no field is left out.
    private const int LatestRelease = int.MaxValue;

    private readonly List<double> _numbers = [];
    private readonly List<object> _objects = [];
    private int _nextNumber;
    private int _nextObject;
    private bool _isReading;

    internal override int Release => LatestRelease;

    internal override bool IsReading => _isReading;

    /// <summary>Begins to give the fields.</summary>
    internal void Rewind() => _isReading = true;

    internal override void BeginSubclass(string name)
    {
    }

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => Bool(0, isSet);

    internal override bool Bool(int code, bool value) => Number(value ? 1 : 0) != 0;

    internal override short Int16(int code, short value) => (short)Number(value);

    internal override int Int32(int code, int value) => (int)Number(value);

    internal override long Int64(int code, long value) => Reference(value);

    internal override int Enum(int code, int value) => (int)Number(value);

    internal override short Color(int code, short value) => (short)Number(value);

    internal override double Double(int code, double value)
    {
        return double.IsFinite(value) ? Number(value) : throw new ImageSaveException(
            $"{subject} has the value {value} for group code {code}; only finite numbers can be copied.");
    }

    internal override double Angle(int code, double value) => Double(code, value);

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

    internal override string Text(int code, string value) => Reference(value);

    internal override string Name(int code, SymbolTable table, string value) => Reference(value);

    internal override string Handle(int code, HandleRole role, string value) => Reference(value);

    internal override ulong Handle(int code, HandleRole role, ulong value) => Reference(value);

    internal override byte[] Binary(int code, byte[] value) => [.. Reference(value)];

    internal override int Count(int code, int count) => (int)Number(count);

    internal override string LongText(int pieceCode, int lastCode, string value) => Reference(value);

    internal override void Lines(List<string> lines) => Items(1, lines, Count(0, lines.Count));

    internal override void Brace(int code, string text)
    {
    }

    internal override void Tags(IList<CadCodeValue> tags)
    {
        int count = Count(0, tags.Count);
        for (int i = 0; i < count; i++)
        {
            int code = (int)Number(i < tags.Count ? tags[i].Attribute : 0);
            string value = Reference(i < tags.Count ? tags[i].Value : "");
            if (_isReading)
            {
                tags.Add(new CadCodeValue(code, value));
            }
        }
    }

    private double Number(double value)
    {
        if (_isReading)
        {
            return _numbers[_nextNumber++];
        }

        _numbers.Add(value);
        return value;
    }

    private T Reference<T>(T value)
        where T : notnull
    {
        if (_isReading)
        {
            return (T)_objects[_nextObject++];
        }

        _objects.Add(value);
        return value;
    }
}
