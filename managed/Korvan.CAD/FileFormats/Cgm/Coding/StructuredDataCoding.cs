using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Type = Korvan.CAD.FileFormats.Cgm.Classes.StructuredDataRecord.StructuredDataType;

namespace Korvan.CAD.FileFormats.Cgm.Coding;

/// <summary>Structured data records: each member is the index of a type, a count and that many values.</summary>
internal static class StructuredDataCoding
{
    private delegate object Exchange(ParameterExchange x, object? value);

    private static readonly Dictionary<Type, Exchange> Types = new()
    {
        [Type.StructuredData] = static (x, value) => x.Record(Needed<StructuredDataRecord>(x, value)),
        [Type.ColorIndex] = static (x, value) => x.ColorIndex(Number(x, value)),
        [Type.DirectColor] = static (x, value) => x.DirectColor(Needed<CgmColor>(x, value)),
        [Type.Name] = static (x, value) => x.Name(Number(x, value)),
        [Type.Enumeration] = static (x, value) => x.BareEnumeration(Number(x, value)),
        [Type.Integer] = static (x, value) => x.Integer(Number(x, value)),
        [Type.Integer8] = static (x, value) => x.Signed(Number(x, value), 8),
        [Type.Integer16] = static (x, value) => x.Signed(Number(x, value), 16),
        [Type.Integer32] = static (x, value) => x.Signed(Number(x, value), 32),
        [Type.Index] = static (x, value) => x.Index(Number(x, value)),
        [Type.Real] = static (x, value) => x.Real(Real(x, value)),
        [Type.Text] = static (x, value) => x.String(Needed<string>(x, value)),
        [Type.FixedText] = static (x, value) => x.String(Needed<string>(x, value)),
        [Type.ViewportCoordinate] = static (x, value) => x.ViewportCoordinate(Needed<VC>(x, value)),
        [Type.Coordinate] = static (x, value) => x.Vdc(Real(x, value)),
        [Type.ColorComponent] = static (x, value) => Fit(x.ColorComponent(Whole(x, value))),
        [Type.Unsigned8] = static (x, value) => Fit(x.Unsigned(Whole(x, value), 8)),
        [Type.Unsigned32] = static (x, value) => Fit(x.Unsigned(Whole(x, value), 32)),
        [Type.Bits] = static (x, value) => Fit(x.Unsigned(Whole(x, value), 16)),
        [Type.ColorList] = static (x, value) => x.Color(Needed<CgmColor>(x, value)),
        [Type.Unsigned16] = static (x, value) => Fit(x.Unsigned(Whole(x, value), 16)),
    };

    internal static StructuredDataRecord Read(ParameterExchange x)
    {
        var record = new StructuredDataRecord();
        while (x.HasMore)
        {
            var type = (Type)x.Index(0);
            Exchange exchange = Find(type);
            List<object> values = x.Counted(new List<object>(), (y, value) => exchange(y, value));
            record.Members.Add(new StructuredDataRecord.Member(type, values));
        }

        return record;
    }

    internal static void Write(ParameterExchange x, StructuredDataRecord record)
    {
        foreach (StructuredDataRecord.Member? member in record.Members)
        {
            Type type = ParameterExchange.Needed(member, "a member of a record").Type;
            Exchange exchange = Find(type);
            x.Index((int)type);
            x.Counted(member.Values, (y, value) => exchange(y, value));
        }
    }

    private static Exchange Find(Type type) =>
        Types.TryGetValue(type, out Exchange? exchange)
            ? exchange
            : throw new CgmDataException($"the type {(int)type} of a value in a record is unknown");

    // While reading there is no value yet.
    private static T? Needed<T>(ParameterExchange x, object? value)
        where T : class => x.IsReading ? null : value as T ?? throw Misfit(value, typeof(T).Name);

    private static int Number(ParameterExchange x, object? value)
    {
        long number = Whole(x, value);
        return number is >= int.MinValue and <= int.MaxValue ? (int)number : throw Misfit(value, "32-bit integer");
    }

    private static long Whole(ParameterExchange x, object? value)
    {
        const double exactLimit = 1L << 53;
        return value switch
        {
            _ when x.IsReading => 0,
            double number when number == Math.Floor(number) && Math.Abs(number) <= exactLimit => (long)number,
            int number => number,
            long number => number,
            bool flag => flag ? 1 : 0,
            _ => throw Misfit(value, "integer"),
        };
    }

    private static double Real(ParameterExchange x, object? value) => value switch
    {
        _ when x.IsReading => 0,
        double number => number,
        float number => number,
        _ => Whole(x, value),
    };

    private static CgmDataException Misfit(object? value, string expected) =>
        new($"the value '{value}' ({value?.GetType().Name ?? "None"}) of a record is no {expected}");

    // Unsigned numbers of 32 bits are doubles where an int does not hold them.
    private static object Fit(long value) =>
        value is >= int.MinValue and <= int.MaxValue ? (object)(int)value : (double)value;
}
