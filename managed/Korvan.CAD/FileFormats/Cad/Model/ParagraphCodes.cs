using System.Collections.Generic;
using System.Globalization;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>
/// The argument of the paragraph code, such as "pi-2,l4,r0,qc,t4,c8": indents and tabs in units of the text height,
/// a star for the default, q and a letter for the alignment.
/// </summary>
internal static class ParagraphCodes
{
    private const int MaxTabs = 256;

    internal static ParagraphFormat Parse(string argument, ParagraphFormat current, double unit)
    {
        ParagraphFormat result = current;
        List<TabStop>? tabs = null;
        foreach (string part in argument.Split(','))
        {
            // An "x" says that an extended code follows: the rest of the item is one more setting.
            string item = part.Trim().TrimStart('x');
            if (item.Length == 0)
            {
                continue;
            }

            if (tabs != null && tabs.Count < MaxTabs && TryTab(item, unit, out TabStop stop))
            {
                tabs.Add(stop);
                continue;
            }

            switch (item[0])
            {
                case 't':
                    tabs = [];
                    if (TryTab(item[1..], unit, out TabStop first))
                    {
                        tabs.Add(first);
                    }

                    break;
                default:
                    result = Apply(result, item, unit);
                    break;
            }
        }

        return tabs == null ? result : result with { Tabs = tabs };
    }

    private static ParagraphFormat Apply(ParagraphFormat format, string item, double unit)
    {
        string rest = item[1..];
        double value = rest == "*" ? 0 : TryNumber(rest, out double number) ? number * unit : 0;
        return item[0] switch
        {
            'i' => format with { First = value },
            'l' => format with { Left = value },
            'r' => format with { Right = value },
            'q' => format with { Align = AlignOf(rest) },
            _ => format,
        };
    }

    private static ParagraphAlign AlignOf(string letter) => letter switch
    {
        "l" => ParagraphAlign.Left,
        "c" => ParagraphAlign.Center,
        "r" => ParagraphAlign.Right,
        "j" => ParagraphAlign.Justified,
        "d" => ParagraphAlign.Distributed,
        _ => ParagraphAlign.Default,
    };

    private static bool TryTab(string item, double unit, out TabStop stop)
    {
        ParagraphAlign align = item.Length == 0 ? ParagraphAlign.Left : item[0] switch
        {
            'c' => ParagraphAlign.Center,
            'r' => ParagraphAlign.Right,
            _ => ParagraphAlign.Left,
        };
        string digits = align == ParagraphAlign.Left ? item : item[1..];
        bool isNumber = TryNumber(digits, out double value);
        stop = new TabStop(value * unit, align);
        return isNumber;
    }

    private static bool TryNumber(string text, out double value) =>
        double.TryParse(text, NumberStyles.Float, CultureInfo.InvariantCulture, out value) && double.IsFinite(value);
}
