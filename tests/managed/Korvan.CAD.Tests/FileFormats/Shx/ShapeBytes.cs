using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;

namespace Korvan.CAD.Tests.FileFormats.Shx;

/// <summary>Compiled shape files in a few words.</summary>
internal static class ShapeBytes
{
    /// <summary>A file of symbols, or of a font whose shape 0 states its heights.</summary>
    internal static byte[] Shapes(params (int Number, string Name, byte[] Code)[] shapes)
    {
        List<byte> bytes = [.. Sentinel("AutoCAD-86 shapes V1.0"), .. U(0), .. U(255), .. U(shapes.Length)];
        foreach ((int number, string name, byte[] code) in shapes)
        {
            bytes.AddRange([.. U(number), .. U(Shape(name, code).Length)]);
        }

        return [.. bytes, .. shapes.SelectMany(static shape => Shape(shape.Name, shape.Code))];
    }

    /// <summary>A font whose numbers are UTF-16 units; the second value of the header is that of no number.</summary>
    internal static byte[] Unicode(bool hasNumber, byte above, params (int Number, byte[] Code)[] shapes)
    {
        byte[] header = Shape("test", [above, 2, 0, 0, 0, 0]);
        return
        [
            .. Sentinel("AutoCAD-86 unifont 1.0"), .. U(shapes.Length + 1), .. hasNumber ? U(0) : [],
            .. U(header.Length), .. header,
            .. shapes.SelectMany(static shape => (byte[])
                [.. U(shape.Number), .. U(Shape("", shape.Code).Length), .. Shape("", shape.Code)]),
        ];
    }

    /// <summary>A big font with lead bytes from 81 to FE.</summary>
    internal static byte[] Big(bool isSwapped, params (int Number, byte[] Code)[] shapes)
    {
        int at = 25 + 6 + 4 + (8 * shapes.Length);
        List<byte> index = [];
        List<byte> data = [];
        foreach ((int number, byte[] code) in shapes)
        {
            int stored = isSwapped ? ((number & 0xFF) << 8) | (number >> 8) : number;
            byte[] shape = Shape("", code);
            index.AddRange([.. U(stored), .. U(shape.Length), .. BitConverter.GetBytes(at + data.Count)]);
            data.AddRange(shape);
        }

        return [.. Sentinel("AutoCAD-86 bigfont 1.0"), .. U(8), .. U(shapes.Length), .. U(1), .. U(0x81), .. U(0xFE),
            .. index, .. data];
    }

    private static byte[] Shape(string name, byte[] code) => [.. Encoding.Latin1.GetBytes(name), 0, .. code];

    private static byte[] Sentinel(string text) => [.. Encoding.ASCII.GetBytes(text), 13, 10, 0x1A];

    private static byte[] U(int value) => BitConverter.GetBytes((ushort)value);
}
