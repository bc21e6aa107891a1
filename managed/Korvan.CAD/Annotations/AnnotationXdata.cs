using System.Collections.Generic;
using System.Globalization;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.Annotations;

/// <summary>The extended data of the text and the leader of an annotation, which identify them.</summary>
internal sealed record AnnotationXdata(string Id, string TargetId, AnnotationDirection Direction)
{
    private const string Application = "KORVAN_ANNOTATION";
    private const int Text = 1000;
    private const int Number = 1070;

    internal static AnnotationXdata? Of(CadEntityBase entity)
    {
        if (entity.XdataOrNull?.Find(Application) is not
            { Data: [{ Attribute: Text } id, { Attribute: Text } target, { Attribute: Number } side, ..] })
        {
            return null;
        }

        return int.TryParse(side.Value, NumberStyles.Integer, CultureInfo.InvariantCulture, out int direction)
            ? new AnnotationXdata(id.Value, target.Value, (AnnotationDirection)direction)
            : null;
    }

    internal void Put(CadEntityBase entity)
    {
        IList<CadXdata> all = entity.XdataContainer.XdataEntities;
        all.RemoveAll(static data => data.RegisteredApplicationName == Application);
        var data = new CadXdata(Application);
        data.Data.Add(new CadCodeValue(Text, Id));
        data.Data.Add(new CadCodeValue(Text, TargetId));
        data.Data.Add(new CadCodeValue(Number, ((int)Direction).ToString(CultureInfo.InvariantCulture)));
        all.Add(data);
    }
}
