using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadParameters;

namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>Lists the fields of an object.</summary>
internal sealed class ParameterCollector : ObjectExchange
{
    private string _subclass = "";

    internal List<CadParameter> Parameters { get; } = [];

    // Later than any release: no field is left out.
    internal override int Release => int.MaxValue;

    internal override bool IsReading => false;

    internal override void BeginSubclass(string name) => _subclass = name;

    internal override void EndSubclass(CadBaseObject target, string name)
    {
    }

    internal override bool Includes(int since, bool isSet) => isSet;

    internal override bool Bool(int code, bool value)
    {
        Parameters.Add(new CadBoolParameter(code, _subclass, value));
        return value;
    }

    internal override short Int16(int code, short value)
    {
        Parameters.Add(new CadShortParameter(code, _subclass, value));
        return value;
    }

    internal override int Int32(int code, int value)
    {
        Parameters.Add(new CadIntParameter(code, _subclass, value));
        return value;
    }

    internal override long Int64(int code, long value)
    {
        Parameters.Add(new CadLongParameter(code, _subclass, value));
        return value;
    }

    internal override int Enum(int code, int value) => Int32(code, value);

    internal override short Color(int code, short value) => Int16(code, value);

    internal override double Double(int code, double value)
    {
        Parameters.Add(new CadDoubleParameter(code, _subclass, value));
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
        Parameters.Add(new CadStringParameter(code, _subclass, value));
        return value;
    }

    internal override string Name(int code, SymbolTable table, string value) => Text(code, value);

    internal override string Handle(int code, HandleRole role, string value) => Text(code, value);

    internal override ulong Handle(int code, HandleRole role, ulong value)
    {
        Text(code, Model.HandleText.Format(value));
        return value;
    }

    internal override byte[] Binary(int code, byte[] value)
    {
        Parameters.Add(new CadBinaryParameter(code, _subclass, value));
        return value;
    }

    internal override int Count(int code, int count) => code == 0 ? count : Int32(code, count);

    internal override string LongText(int pieceCode, int lastCode, string value) => Text(lastCode, value);

    internal override void Lines(List<string> lines) => lines.ForEach(line => Text(1, line));

    internal override void Brace(int code, string text) => Text(code, text);

    internal override void Tags(IList<CadCodeValue> tags)
    {
        foreach (CadCodeValue tag in tags)
        {
            Text(tag.Attribute, tag.Value);
        }
    }
}
