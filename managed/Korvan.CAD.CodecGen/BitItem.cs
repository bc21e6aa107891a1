using System.Linq;
using System.Text.RegularExpressions;

namespace Korvan.CAD.CodecGen;

/// <summary>One item of the fields of a class in drawing databases, as its class states it.</summary>
internal sealed class BitItem
{
    private static readonly Regex Release = new(@"^(?<from>\d{4})(?<plus>\+|-(?<to>\d{4}))\s+|^-(?<last>\d{4})\s+");
    private static readonly Regex Condition = new(@"^if (?<when>[^:]+(::[^:]+)*): ");
    private static readonly Regex Coded = new(@"^(?<coding>\w+)(\[(?<count>[^\]]+)\])?(\s+(?<names>[\w. ]+))?$");
    private static readonly Regex Constant = new(@"^(?<coding>\w+) = (?<value>.+)$");

    public BitItem(string text)
    {
        string rest = text.Trim();
        Match release = Release.Match(rest);
        if (release.Success)
        {
            From = Number(release.Groups["from"]);
            To = Number(release.Groups["to"]) + Number(release.Groups["last"]);
            rest = rest.Substring(release.Length);
        }

        Match condition = Condition.Match(rest);
        if (condition.Success)
        {
            When = condition.Groups["when"].Value;
            rest = rest.Substring(condition.Length);
        }

        ReadAction(rest);
    }

    /// <summary>The first release that has the item; 0 for all.</summary>
    public int From { get; }

    /// <summary>The last release that has the item; 0 for all.</summary>
    public int To { get; }

    /// <summary>The condition under which the item is there, as source text; empty for always.</summary>
    public string When { get; } = "";

    public string Coding { get; private set; } = "";

    /// <summary>The coding of the number of items of a list, or an expression; empty for a single value.</summary>
    public string Count { get; private set; } = "";

    public string[] Names { get; private set; } = [];

    /// <summary>The value that is written where the class keeps none.</summary>
    public string Value { get; private set; } = "";

    /// <summary>A method of the class, or a keyword; empty for a field.</summary>
    public string Call { get; private set; } = "";

    /// <summary>The condition as source text; empty for always.</summary>
    public string Guard
    {
        get
        {
            string from = From > 0 ? $"fields.Release >= {From}" : "";
            string to = To > 0 ? $"fields.Release <= {To}" : "";
            return string.Join(" && ", new[] { from, to, When }.Where(part => part.Length > 0));
        }
    }

    private void ReadAction(string text)
    {
        Match constant = Constant.Match(text);
        Match coded = Coded.Match(text);
        if (text is "base" or "declared" or "partial" || text.EndsWith("()", System.StringComparison.Ordinal))
        {
            Call = text;
        }
        else if (constant.Success)
        {
            Coding = constant.Groups["coding"].Value;
            Value = constant.Groups["value"].Value;
        }
        else if (coded.Success)
        {
            Coding = coded.Groups["coding"].Value;
            Count = coded.Groups["count"].Value;
            Names = coded.Groups["names"].Value.Split([' '], System.StringSplitOptions.RemoveEmptyEntries);
        }
    }

    private static int Number(Group digits) => digits.Success ? int.Parse(digits.Value) : 0;
}
