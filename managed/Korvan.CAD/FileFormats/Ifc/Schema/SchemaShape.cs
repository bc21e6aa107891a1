namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>What values of an attribute or a defined type are, behind all names.</summary>
internal enum SchemaShape
{
    /// <summary>STRING.</summary>
    Text,

    /// <summary>REAL or NUMBER.</summary>
    Real,

    /// <summary>INTEGER.</summary>
    Integer,

    /// <summary>BOOLEAN.</summary>
    Boolean,

    /// <summary>LOGICAL: true, false or unknown.</summary>
    Logical,

    /// <summary>BINARY.</summary>
    Binary,

    /// <summary>One item of an enumeration.</summary>
    Enumeration,

    /// <summary>A value of one of several types.</summary>
    Select,

    /// <summary>A reference to an instance.</summary>
    Entity,

    /// <summary>A list, set, array or bag.</summary>
    Aggregate,
}
