namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>The kind of the values of an attribute or a defined type, after names are resolved.</summary>
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

    /// <summary>ENUMERATION.</summary>
    Enumeration,

    /// <summary>A value of an EXPRESS select type: of one of several types.</summary>
    Select,

    /// <summary>A reference to an instance.</summary>
    Entity,

    /// <summary>A list, set, array or bag.</summary>
    Aggregate,
}
