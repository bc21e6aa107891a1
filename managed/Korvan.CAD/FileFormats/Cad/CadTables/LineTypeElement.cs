using System;
using System.Collections.Generic;
using System.Globalization;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadTables;

/// <summary>A dash, gap or dot of a line type, and the shape or string upon it. Source: Open Design Specification for
/// .dwg files, 5.4.1, section 20.4.58.</summary>
internal sealed class LineTypeElement
{
    private const int TextFlag = 2;
    private const int ShapeFlag = 4;

    private double _length;
    private int _shape;
    private double _offsetX;
    private double _offsetY;
    private double _scale = 1;
    private double _rotation;
    private int _flags;
    private string _style = "0";
    private string _text = "";

    /// <summary>Gets whether a string is on the element.</summary>
    internal bool IsText => (_flags & TextFlag) != 0;

    /// <summary>Creates the elements of a pattern and of the tags that text files have for it.</summary>
    internal static List<LineTypeElement> From(List<double> pattern, List<(int Element, CadCodeValue Tag)> tags)
    {
        List<LineTypeElement> elements = pattern.ConvertAll(static length => new LineTypeElement { _length = length });
        foreach ((int element, CadCodeValue tag) in tags)
        {
            if (element > 0 && element <= elements.Count)
            {
                elements[element - 1].Take(tag);
            }
        }

        return elements;
    }

    /// <summary>Packs the strings of the elements, and notes their places.</summary>
    internal static byte[] PackStrings(List<LineTypeElement> elements, bool isUnicode)
    {
        const int narrow = 256;
        Encoding encoding = isUnicode ? Encoding.Unicode : Encoding.Latin1;
        byte[] area = new byte[isUnicode ? 2 * narrow : narrow];
        int at = isUnicode ? 0 : 1;
        int unit = isUnicode ? 2 : 1;
        foreach (LineTypeElement element in elements.FindAll(static element => element.IsText))
        {
            byte[] bytes = encoding.GetBytes(element._text);
            int length = Math.Min(bytes.Length, Math.Max(0, area.Length - at - unit));
            bytes.AsSpan(0, length).CopyTo(area.AsSpan(at));
            element._shape = at / unit;
            at += length + unit;
        }

        return area;
    }

    internal void ExchangeBits(BitExchange fields)
    {
        _length = fields.BitDouble(_length);
        _shape = fields.BitShort(_shape);
        _offsetX = fields.RawDouble(_offsetX);
        _offsetY = fields.RawDouble(_offsetY);
        _scale = fields.BitDouble(_scale);
        _rotation = fields.Angle(_rotation);
        _flags = fields.BitShort(_flags);
    }

    internal void ExchangeStyle(BitExchange fields) => _style = fields.Handle(HandleRole.HardPointer, _style);

    /// <summary>Adds the element to a pattern and to the tags that text files have for it.</summary>
    internal void AddTo(
        List<double> pattern, List<(int Element, CadCodeValue Tag)> tags, byte[] area, bool isUnicode)
    {
        pattern.Add(_length);
        if ((_flags & (TextFlag | ShapeFlag)) == 0)
        {
            return;
        }

        int element = pattern.Count;
        Add(74, _flags.ToString(CultureInfo.InvariantCulture));
        Add(75, (IsText ? 0 : _shape).ToString(CultureInfo.InvariantCulture));
        Add(340, _style);
        Add(46, Number(_scale));
        Add(50, Number(_rotation));
        Add(44, Number(_offsetX));
        Add(45, Number(_offsetY));
        if (IsText)
        {
            Add(9, StringAt(area, isUnicode));
        }

        void Add(int code, string value) => tags.Add((element, new CadCodeValue(code, value)));
    }

    private static string Number(double value) => value.ToString("R", CultureInfo.InvariantCulture);

    private string StringAt(byte[] area, bool isUnicode)
    {
        string all = (isUnicode ? Encoding.Unicode : Encoding.Latin1).GetString(area);
        int start = Math.Clamp(_shape, 0, all.Length);
        int end = all.IndexOf('\0', start);
        return all[start..(end < 0 ? all.Length : end)];
    }

    private void Take(CadCodeValue tag)
    {
        switch (tag.Attribute)
        {
            case 74:
                _flags = tag.GetIntValue();
                break;
            case 75:
                _shape = tag.GetIntValue();
                break;
            case 340:
                _style = tag.Value.Trim();
                break;
            case 46:
                _scale = tag.GetDoubleValue();
                break;
            case 50:
                _rotation = tag.GetDoubleValue();
                break;
            case 44:
                _offsetX = tag.GetDoubleValue();
                break;
            case 45:
                _offsetY = tag.GetDoubleValue();
                break;
            case 9:
                _text = tag.Value;
                break;
        }
    }
}
