using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the fields that proxies of entities and of objects have in common.</summary>
internal static class ProxyFields
{
    // Some programs write the format before the sizes, some after the references.
    internal static (int Drawing, short Original) ExchangeFormat(
        ObjectExchange fields, bool isHere, int drawing, short original)
    {
        if (fields.Has(95, 0, isHere && drawing != 0))
        {
            drawing = fields.Int32(95, drawing);
        }

        if (fields.Has(70, 0, isHere && original != 0))
        {
            original = fields.Int16(70, original);
        }

        return (drawing, original);
    }

    /// <summary>Carries the format as records from release 2018 on have it.</summary>
    internal static int ExchangeFormat(BitExchange fields, int format)
    {
        int release = fields.BitLong(format & 0xFFFF);
        return (release & 0xFFFF) | (fields.BitLong(format >> 16) << 16);
    }

    internal static int ExchangeSize(ObjectExchange fields, int code, int longCode, int size)
    {
        const int withLongSizes = 2010;
        bool isLong = fields.Release >= withLongSizes;
        if (fields.Has(code, 0, !isLong && size != 0))
        {
            size = fields.Int32(code, size);
        }

        return fields.Has(longCode, 0, isLong && size != 0)
            ? (int)Math.Clamp(fields.Int64(longCode, size), 0, int.MaxValue) : size;
    }

    internal static byte[] ExchangeBytes(ObjectExchange fields, byte[] data) =>
        fields.Has(310, 0, data.Length > 0) ? fields.Binary(310, data) : data;

    /// <summary>Carries references, which come in any order of their kinds, and what ends them.</summary>
    internal static void ExchangeReferences(ObjectExchange fields, List<CadCodeValue> references)
    {
        const int end = 94;
        int present = references.Count;
        for (int i = 0; CodeOfNext(fields, references, i, present) is { } code and > 0; i++)
        {
            if (fields.IsReading)
            {
                references.Add(new CadCodeValue(code, "0"));
            }

            references[i].Value = fields.Handle(code, RoleOf(code), references[i].Value);
        }

        if (fields.Has(end, 0, references.Count > 0))
        {
            fields.Int32(end, 0);
        }
    }

    private static int CodeOfNext(ObjectExchange fields, List<CadCodeValue> references, int index, int present)
    {
        ReadOnlySpan<int> codes = [330, 340, 350, 360];
        foreach (int code in codes)
        {
            if (fields.HasItem(code, index < present && references[index].Attribute == code))
            {
                return code;
            }
        }

        return 0;
    }

    private static HandleRole RoleOf(int code) => code switch
    {
        330 => HandleRole.SoftPointer,
        350 => HandleRole.SoftOwner,
        360 => HandleRole.HardOwner,
        _ => HandleRole.HardPointer,
    };
}
