namespace Korvan.CAD.Input;

/// <summary>Kinds of defects in files. The numbers are stable: those below 200 concern the syntax, 200 to 299 the
/// schema, 300 to 399 references, 400 to 499 the container of the data, 500 to 599 tags
/// and objects of drawings.</summary>
internal enum LoadDefectCode
{
    /// <summary>A character or keyword that the syntax requires is missing.</summary>
    MissingToken = 101,

    /// <summary>A string, comment, enumeration item or binary value has no end.</summary>
    UnterminatedValue = 102,

    /// <summary>A value cannot be read.</summary>
    InvalidValue = 103,

    /// <summary>A record has no identifier, or one that is out of range.</summary>
    InvalidId = 104,

    /// <summary>Lists or elements are nested deeper than the limit.</summary>
    NestedTooDeep = 105,

    /// <summary>A section is missing, has no end, or is unknown.</summary>
    InvalidSection = 106,

    /// <summary>The file ends too early.</summary>
    Truncated = 107,

    /// <summary>The schema that the file names has no reader.</summary>
    UnknownSchema = 201,

    /// <summary>The schema has no such entity.</summary>
    UnknownEntity = 202,

    /// <summary>The entity is abstract, so that it has no instances of its own.</summary>
    AbstractEntity = 203,

    /// <summary>The number of attributes is not that of the entity.</summary>
    AttributeCount = 204,

    /// <summary>The entity has no such attribute.</summary>
    UnknownAttribute = 205,

    /// <summary>An attribute has a value of another type, or none.</summary>
    WrongType = 206,

    /// <summary>An identifier is used by several records.</summary>
    DuplicateId = 301,

    /// <summary>A reference leads to no record.</summary>
    UnresolvedReference = 302,

    /// <summary>The XML is not well-formed, or has another root element.</summary>
    InvalidXml = 401,

    /// <summary>The ZIP archive is damaged, or does not contain exactly one model.</summary>
    InvalidArchive = 402,

    /// <summary>A checksum is not that of the data.</summary>
    WrongChecksum = 403,

    /// <summary>Compressed data cannot be decompressed.</summary>
    InvalidCompression = 404,

    /// <summary>The file is encrypted.</summary>
    Encrypted = 405,

    /// <summary>A page or section is stated where the file has none.</summary>
    InvalidPage = 406,

    /// <summary>A tag begins with something that is not a group code.</summary>
    BadGroupCode = 501,

    /// <summary>The file ends within a tag.</summary>
    EndsWithinTag = 502,

    /// <summary>The file ends before a section that it has to have.</summary>
    EndsEarly = 503,

    /// <summary>A section has no name.</summary>
    SectionWithoutName = 504,

    /// <summary>A section has no end.</summary>
    SectionWithoutEnd = 505,

    /// <summary>A tag or an object is found where another one was expected.</summary>
    Misplaced = 506,

    /// <summary>A value is not a number.</summary>
    BadNumber = 511,

    /// <summary>A value is not a finite number.</summary>
    NotFinite = 512,

    /// <summary>A value is not an integer.</summary>
    BadInteger = 513,

    /// <summary>An integer does not fit its type.</summary>
    OutOfRange = 514,

    /// <summary>More items are announced than the rest of the file can hold.</summary>
    CountTooLarge = 515,

    /// <summary>A value is not a handle.</summary>
    BadHandle = 516,

    /// <summary>Binary data is not pairs of hexadecimal digits.</summary>
    BadBinary = 517,

    /// <summary>A value is none of those that the format defines.</summary>
    BadValue = 518,

    /// <summary>The record of an object cannot be read.</summary>
    DamagedObject = 531,

    /// <summary>The record of an object is whole, but has other fields than those that are known for its
    /// type.</summary>
    UnknownFields = 532,

    /// <summary>Further defects were counted, but not kept.</summary>
    NotKept = 901,
}
