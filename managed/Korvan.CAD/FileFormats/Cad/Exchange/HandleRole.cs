namespace Korvan.CAD.FileFormats.Cad.Exchange;

/// <summary>What a handle means to the object that holds it.</summary>
internal enum HandleRole
{
    /// <summary>The object knows the other one; either can be there without the other.</summary>
    SoftPointer,

    /// <summary>The object needs the other one.</summary>
    HardPointer,

    /// <summary>The object owns the other one, which may be purged.</summary>
    SoftOwner,

    /// <summary>The object owns and needs the other one.</summary>
    HardOwner,
}
