using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Determines which coordinates the points of an entity are in.</summary>
internal static class EntityCoordinates
{
    internal static CadEntityCoordinates Of(CadEntityBase entity) => entity switch
    {
        CadCircle or CadText or CadSolid or CadLwPolyline or CadPolyline or CadInsertObject or CadHatch or CadUnderlay
            => CadEntityCoordinates.Object,
        _ => CadEntityCoordinates.World,
    };
}
