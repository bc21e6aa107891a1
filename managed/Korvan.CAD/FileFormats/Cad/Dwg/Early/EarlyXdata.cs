using System;
using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Reads extended data: items that begin with their group codes less 1000.</summary>
internal static class EarlyXdata
{
    private const int Offset = 1000;
    private const int ApplicationCode = 1;
    private const int YStep = 10;

    internal static List<CadXdata> Read(EarlyBytes bytes, EarlyValues values)
    {
        int length = bytes.UInt16();
        if (length > bytes.Remaining)
        {
            throw bytes.Fail(
                LoadDefectCode.Truncated,
                bytes.Position,
                $"extended data of {length} bytes is announced, but {bytes.Remaining} are left");
        }

        List<CadXdata> all = [];
        int end = bytes.Position + length;
        while (bytes.Position < end)
        {
            int code = bytes.Byte();
            if (code == ApplicationCode)
            {
                all.Add(new CadXdata(
                    EarlyNames.Find(values.Names.Applications, bytes.Int16(), "application", bytes) ?? ""));
                continue;
            }

            if (all.Count == 0)
            {
                throw bytes.Fail(
                    LoadDefectCode.Misplaced, bytes.Position, "extended data begins without an application");
            }

            ReadItem(code, all[^1], bytes, values);
        }

        return all;
    }

    private static void ReadItem(int code, CadXdata target, EarlyBytes bytes, EarlyValues values)
    {
        switch (code)
        {
            case 0:
                Add(target, code, values.Decode(bytes.Take(bytes.Byte())));
                break;
            case 2:
                Add(target, code, bytes.Byte() == 0 ? "{" : "}");
                break;
            case 3:
                Add(target, code, EarlyNames.Find(values.Names.Layers, bytes.Int16(), "layer", bytes) ?? "0");
                break;
            case 4:
                target.Data.Add(new CadBinaryCodeValue(
                    Offset + code, Convert.ToHexString(bytes.Take(bytes.Byte()))));
                break;
            case 5:
                Add(target, code, bytes.BigEndian(sizeof(ulong)).ToString("X", CultureInfo.InvariantCulture));
                break;
            case >= 10 and <= 15:
                Add(target, code, EarlyFieldReader.Text(bytes.Double()));
                Add(target, code + YStep, EarlyFieldReader.Text(bytes.Double()));
                Add(target, code + YStep + YStep, EarlyFieldReader.Text(bytes.Double()));
                break;
            case >= 40 and <= 42:
                Add(target, code, EarlyFieldReader.Text(bytes.Double()));
                break;
            case 70:
                Add(target, code, bytes.Int16().ToString(CultureInfo.InvariantCulture));
                break;
            case 71:
                Add(target, code, ((int)bytes.UInt32()).ToString(CultureInfo.InvariantCulture));
                break;
            default:
                throw bytes.Fail(
                    LoadDefectCode.BadGroupCode, bytes.Position, $"extended data has no items of the code {code}");
        }
    }

    private static void Add(CadXdata target, int code, string text) =>
        target.Data.Add(new CadCodeValue(Offset + code, text));
}
