using System;
using System.Globalization;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>How a field of the header section is stored.</summary>
internal enum HeaderCoding
{
    /// <summary>A bit: 0 or 1.</summary>
    Bit,

    /// <summary>An integer of 16 bits in a bit code.</summary>
    BitShort,

    /// <summary>An integer of 32 bits in a bit code.</summary>
    BitLong,

    /// <summary>An integer of 64 bits in a bit code.</summary>
    BitLongLong,

    /// <summary>A byte.</summary>
    RawByte,

    /// <summary>A number in a bit code.</summary>
    BitDouble,

    /// <summary>Three numbers in a bit code.</summary>
    Point,

    /// <summary>Two numbers of eight bytes.</summary>
    FlatPoint,

    /// <summary>A string.</summary>
    Text,

    /// <summary>A colour.</summary>
    Color,

    /// <summary>Days and milliseconds.</summary>
    Time,

    /// <summary>A reference.</summary>
    Handle,

    /// <summary>A handle that is a value.</summary>
    OwnHandle,

    /// <summary>Settings of line weights and others in the bits of an integer.</summary>
    Flags,
}

/// <summary>A field of the header section.</summary>
/// <param name="Name">The name of the variable with its dollar sign; one without is no variable.</param>
/// <param name="Coding">How it is stored.</param>
/// <param name="GroupCode">The group code of the variable.</param>
/// <param name="Since">The first release that has it, as a year.</param>
/// <param name="Until">The last release that has it, as a year.</param>
/// <param name="Default">The value where a drawing states none.</param>
/// <param name="HandleCode">The kind of reference: 3 owns the object, 5 needs it.</param>
internal sealed record HeaderField(
    string Name, HeaderCoding Coding, int GroupCode, int Since, int Until, double Default, int HandleCode)
{
    internal bool IsVariable => Name.StartsWith('$');

    /// <summary>Parses a field of the list: its coding and name, then where it differs from the default a group code
    /// after a colon, a value after an equals sign, the kind of reference after an at sign.</summary>
    internal static HeaderField Parse(string text, int since, int until)
    {
        string[] words = text.Split(' ', StringSplitOptions.RemoveEmptyEntries);
        HeaderCoding coding = CodingOf(words[0]);
        int groupCode = DefaultGroupCode(coding);
        double value = 0;
        int handleCode = 5;
        foreach (string word in words.AsSpan(2))
        {
            double number = double.Parse(word.AsSpan(1), CultureInfo.InvariantCulture);
            switch (word[0])
            {
                case ':':
                    groupCode = (int)number;
                    break;
                case '=':
                    value = number;
                    break;
                default:
                    handleCode = (int)number;
                    break;
            }
        }

        string name = char.IsAsciiLetterLower(words[1][0]) ? words[1] : "$" + words[1];
        return new HeaderField(name, coding, groupCode, since, until, value, handleCode);
    }

    private static HeaderCoding CodingOf(string code) => code switch
    {
        "B" => HeaderCoding.Bit,
        "BS" => HeaderCoding.BitShort,
        "BL" => HeaderCoding.BitLong,
        "BLL" => HeaderCoding.BitLongLong,
        "RC" => HeaderCoding.RawByte,
        "BD" => HeaderCoding.BitDouble,
        "3BD" => HeaderCoding.Point,
        "2RD" => HeaderCoding.FlatPoint,
        "T" => HeaderCoding.Text,
        "CMC" => HeaderCoding.Color,
        "TIME" => HeaderCoding.Time,
        "H" => HeaderCoding.Handle,
        "OH" => HeaderCoding.OwnHandle,
        _ => HeaderCoding.Flags,
    };

    private static int DefaultGroupCode(HeaderCoding coding) => coding switch
    {
        HeaderCoding.BitDouble or HeaderCoding.Time => 40,
        HeaderCoding.Point or HeaderCoding.FlatPoint => 10,
        HeaderCoding.Text => 1,
        HeaderCoding.Handle => 2,
        HeaderCoding.OwnHandle => 5,
        HeaderCoding.RawByte => 280,
        HeaderCoding.BitLongLong => 160,
        _ => 70,
    };
}
