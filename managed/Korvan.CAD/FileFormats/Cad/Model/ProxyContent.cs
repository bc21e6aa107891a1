using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>What proxies have of an object that no class interprets.</summary>
/// <param name="Format">The number that drawing databases have for their release.</param>
/// <param name="Bits">The number of bits of data.</param>
/// <param name="Data">The data with its strings.</param>
/// <param name="References">The references, each with the group code of its kind.</param>
internal sealed record ProxyContent(int Format, long Bits, byte[] Data, IList<CadCodeValue> References)
{
    /// <summary>Returns the fields of a proxy.</summary>
    /// <param name="number">The number of the class of the object.</param>
    /// <param name="isEntity">Whether it is an entity.</param>
    internal CadBaseObject ToProxy(int number, bool isEntity)
    {
        if (isEntity)
        {
            CadAcadProxyEntity entity = new()
            {
                ApplicationClassId = number,
                DrawingFormat = Format,
                EntitySize = (int)Bits,
                EntityData = Data,
            };
            entity.References.AddRange(References);
            return entity;
        }

        CadAcadProxyObject proxy = new()
        {
            ApplicationClassId = number,
            DrawingFormat = Format,
            DataSize = (int)Bits,
            Data = Data,
        };
        proxy.References.AddRange(References);
        return proxy;
    }
}
