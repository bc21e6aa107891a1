namespace Korvan.CAD.CadExceptions;

/// <summary>The kinds of defects that files are found to have, by number.</summary>
internal enum LoadDefectCode
{
    /// <summary>A tag begins with something that is not a group code.</summary>
    BadGroupCode = 101,

    /// <summary>The file ends within a tag.</summary>
    EndsWithinTag = 102,

    /// <summary>The file ends before a section that it has to have.</summary>
    EndsEarly = 103,

    /// <summary>A section has no name.</summary>
    SectionWithoutName = 104,

    /// <summary>A section has no end.</summary>
    SectionWithoutEnd = 105,

    /// <summary>A tag or an object stands where another one was expected.</summary>
    Misplaced = 106,

    /// <summary>A value is not a number.</summary>
    BadNumber = 201,

    /// <summary>A value is not a finite number.</summary>
    NotFinite = 202,

    /// <summary>A value is not an integer.</summary>
    BadInteger = 203,

    /// <summary>An integer does not fit its type.</summary>
    OutOfRange = 204,

    /// <summary>More items are announced than the rest of the file can hold.</summary>
    CountTooLarge = 205,

    /// <summary>A value is not a handle.</summary>
    BadHandle = 206,

    /// <summary>Binary data is not pairs of hexadecimal digits.</summary>
    BadBinary = 207,

    /// <summary>A value is none of those that the format defines.</summary>
    BadValue = 208,
}
