using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Primitives;

namespace Korvan.CAD.Annotations;

/// <summary>A text that speaks of an entity or a place, with an arrow to it.</summary>
public class AnnotationEntity : IDrawingEntity
{
    internal AnnotationEntity(CadMText note, CadLeader? leader, AnnotationMark mark)
    {
        Note = note;
        Leader = leader;
        Mark = mark;
    }

    /// <summary>Gets what names the annotation among others, in this and any other drawing.</summary>
    public string UniqueId => Mark.Id;

    /// <summary>Gets the word "ANNOTATION".</summary>
    public string TypeNameText => "ANNOTATION";

    /// <summary>Gets or sets the text; lines are parted by line feeds.</summary>
    public string Text
    {
        get => AnnotationText.Unescape(Note.Text);
        set => Note.Text = AnnotationText.Escape(value);
    }

    /// <summary>Gets the point that the arrow points to, in world coordinates.</summary>
    public Point3D Point => ToPoint(Leader is { Coordinates.Count: > 0 } leader ? leader.Coordinates[0] : Note.InsertionPoint);

    /// <summary>Gets where the text stands, in world coordinates.</summary>
    public Point3D TextPoint => ToPoint(Note.InsertionPoint);

    /// <summary>Gets the handle of the entity that the annotation speaks of; empty where it speaks of a place.</summary>
    public string TargetId => Mark.TargetId;

    /// <summary>Gets where the text stands, seen from the point.</summary>
    public AnnotationDirection Direction => Mark.Direction;

    /// <summary>Gets the height of the letters, in drawing units.</summary>
    public double TextHeight => Note.InitialTextHeight;

    /// <summary>Gets or sets the name of the layer of text and arrow.</summary>
    public string LayerName
    {
        get => Note.LayerName;
        set
        {
            Note.LayerName = value;
            if (Leader is not null)
            {
                Leader.LayerName = value;
            }
        }
    }

    internal CadMText Note { get; }

    internal CadLeader? Leader { get; }

    internal AnnotationMark Mark { get; }

    private static Point3D ToPoint(Cad3DPoint point) => new(point.X, point.Y, point.Z);
}
