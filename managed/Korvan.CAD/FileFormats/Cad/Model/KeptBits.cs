using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What a drawing database (DWG) has of an object that no class interprets.</summary>
internal sealed class KeptBits : KeptData
{
    /// <summary>Gets the release of the database, as a year.</summary>
    internal required int Release { get; init; }

    /// <summary>Gets the record of an object that has no class, without its size and checksum; empty where a class
    /// interprets it.</summary>
    internal byte[] Record { get; init; } = [];

    /// <summary>Gets the handle that the record states.</summary>
    internal ulong Handle { get; init; }

    /// <summary>Gets or sets the number of the fields of the entity as the record states them.</summary>
    internal ulong Fields { get; set; }

    /// <summary>Gets how many bits of the record are references, in releases from 2010 on.</summary>
    internal int HandleBits { get; init; }

    /// <summary>Gets what text files have of the record; null where it is empty.</summary>
    internal Deferred<ProxyContent>? Proxy { get; init; }

    /// <summary>Gets the graphics that a program stored with the entity.</summary>
    internal byte[] Graphics { get; init; } = [];

    /// <summary>Returns what remains of an object whose record is damaged.</summary>
    internal KeptBits WithoutRecord() => new() { Release = Release, Graphics = Graphics };

    /// <summary>Determines whether the record states what the object has now.</summary>
    internal bool IsOf(CadBaseObject item) => Handle == item.Handle
        && (item is not CadEntityBase entity || Fields == EntityDigests.OfFields(entity));

    internal override string FormatName => "DWG";

    internal override KeptData Copy() => this;
}
