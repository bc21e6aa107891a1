using System;
using System.Collections.Generic;
using System.Text;
using Korvan.CAD.FileFormats.Cgm;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using TextElement = Korvan.CAD.FileFormats.Cgm.Commands.Text;

namespace Korvan.CAD.Rendering.Metafile;

/// <summary>Collects the texts of all pictures, without drawing them.</summary>
internal static class MetafileTexts
{
    internal static List<TextInformation> Collect(CgmFile file)
    {
        var scene = new MetafileScene(file);
        var texts = new List<TextInformation>();
        foreach (MetafilePicture picture in scene.Pictures)
        {
            PictureState state = picture.State.Clone();
            for (int at = picture.First; at < picture.End; at++)
            {
                Command command = scene.CommandAt(at);
                CgmPoint? position = command switch
                {
                    TextElement text => text.Position,
                    RestrictedText text => text.Position,
                    _ => null,
                };
                if (position is null)
                {
                    StateChanges.Apply(state, command);
                }
                else
                {
                    texts.Add(Describe(Content(scene, at, picture.End), position, state, picture.Frame));
                }
            }
        }

        return texts;
    }

    /// <summary>The text that starts at a command, with the strings appended to it.</summary>
    private static string Content(MetafileScene scene, int at, int end)
    {
        var piece = (TextCommand)scene.CommandAt(at);
        if (piece.Final == AppendText.FinalType.Final)
        {
            return piece.Content;
        }

        var content = new StringBuilder(piece.Content);
        for (at++; at < end && scene.CommandAt(at) is not (TextElement or RestrictedText); at++)
        {
            if (scene.CommandAt(at) is AppendText next)
            {
                content.Append(next.Content);
                if (next.Final == AppendText.FinalType.Final)
                {
                    break;
                }
            }
        }

        return content.ToString();
    }

    private static TextInformation Describe(
        string content, CgmPoint position, PictureState state, in PictureFrame frame)
    {
        TextState style = state.CurrentText();
        double angle = style.Orientation is CharacterOrientation orientation
            ? Math.Atan2(orientation.BaseY, orientation.BaseX) * 180 / Math.PI
            : 0;
        return new TextInformation(content, position, style.HeightIn(frame), angle, state.FontName(style));
    }
}
