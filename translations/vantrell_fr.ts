<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>Alert</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne plus afficher ce message</translation>
    </message>
</context>
<context>
    <name>Column</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manque</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Source Timecode</source>
        <translation>Timecode source</translation>
    </message>
    <message>
        <source>Reel</source>
        <translation>Bobine</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Utilisé</translation>
    </message>
    <message>
        <source>Uses</source>
        <translation>Utilisations</translation>
    </message>
    <message>
        <source>Sequences</source>
        <translation>Séquences</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Média</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Séquence</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Partition</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>head %1</source>
        <translation>début %1</translation>
    </message>
    <message>
        <source>tail %1</source>
        <translation>fin %1</translation>
    </message>
    <message>
        <source>switched on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 activé</translation>
    </message>
    <message>
        <source>%1 off</source>
        <translation>%1 désactivé</translation>
    </message>
    <message>
        <source>was %1</source>
        <translation>était %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>variable</source>
        <translation>variable</translation>
    </message>
</context>
<context>
    <name>Edit</name>
    <message>
        <source>Rename Marker</source>
        <translation>Renommer le marqueur</translation>
    </message>
    <message>
        <source>Rename Markers</source>
        <translation>Renommer les marqueurs</translation>
    </message>
    <message>
        <source>Change Comment</source>
        <translation>Modifier le commentaire</translation>
    </message>
    <message>
        <source>Change Comments</source>
        <translation>Modifier les commentaires</translation>
    </message>
    <message>
        <source>Change Color</source>
        <translation>Modifier la couleur</translation>
    </message>
    <message>
        <source>Change Colors</source>
        <translation>Modifier les couleurs</translation>
    </message>
    <message>
        <source>Change In Point</source>
        <translation>Modifier le point d’entrée</translation>
    </message>
    <message>
        <source>Change In Points</source>
        <translation>Modifier les points d’entrée</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <translation>Modifier la durée</translation>
    </message>
    <message>
        <source>Change Durations</source>
        <translation>Modifier les durées</translation>
    </message>
    <message>
        <source>Change Chapter Flag</source>
        <translation>Modifier l’indicateur de chapitre</translation>
    </message>
    <message>
        <source>Change Chapter Flags</source>
        <translation>Modifier les indicateurs de chapitre</translation>
    </message>
    <message>
        <source>Change Compression Flag</source>
        <translation>Modifier l’indicateur de compression</translation>
    </message>
    <message>
        <source>Change Compression Flags</source>
        <translation>Modifier les indicateurs de compression</translation>
    </message>
    <message>
        <source>Change Scoring Flag</source>
        <translation>Modifier l’indicateur de partition</translation>
    </message>
    <message>
        <source>Change Scoring Flags</source>
        <translation>Modifier les indicateurs de partition</translation>
    </message>
    <message>
        <source>Change Marker Field</source>
        <translation>Modifier le champ de marqueur</translation>
    </message>
    <message>
        <source>Change Marker Fields</source>
        <translation>Modifier les champs de marqueur</translation>
    </message>
    <message>
        <source>Move Marker to Sequence</source>
        <translation>Déplacer le marqueur vers une séquence</translation>
    </message>
    <message>
        <source>Move Marker to Clip</source>
        <translation>Déplacer le marqueur vers un clip</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Ajouter un marqueur</translation>
    </message>
    <message>
        <source>Duplicate Marker</source>
        <translation>Dupliquer le marqueur</translation>
    </message>
    <message>
        <source>Duplicate Markers</source>
        <translation>Dupliquer les marqueurs</translation>
    </message>
    <message>
        <source>Move Marker</source>
        <translation>Déplacer le marqueur</translation>
    </message>
    <message>
        <source>Move Markers</source>
        <translation>Déplacer les marqueurs</translation>
    </message>
    <message>
        <source>Import Markers</source>
        <translation>Importer des marqueurs</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Supprimer le marqueur</translation>
    </message>
    <message>
        <source>Remove Markers</source>
        <translation>Supprimer les marqueurs</translation>
    </message>
    <message>
        <source>Offset Marker</source>
        <translation>Décaler le marqueur</translation>
    </message>
    <message>
        <source>Offset Markers</source>
        <translation>Décaler les marqueurs</translation>
    </message>
    <message>
        <source>Carry Markers</source>
        <translation>Reporter les marqueurs</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Relier</translation>
    </message>
    <message>
        <source>Change Effect</source>
        <translation>Modifier l’effet</translation>
    </message>
    <message>
        <source>Change Effects</source>
        <translation>Modifier les effets</translation>
    </message>
    <message>
        <source>Switch On Effect</source>
        <translation>Activer l’effet</translation>
    </message>
    <message>
        <source>Switch On Effects</source>
        <translation>Activer les effets</translation>
    </message>
    <message>
        <source>Switch Off Effect</source>
        <translation>Désactiver l’effet</translation>
    </message>
    <message>
        <source>Switch Off Effects</source>
        <translation>Désactiver les effets</translation>
    </message>
    <message>
        <source>Remove Effect</source>
        <translation>Supprimer l’effet</translation>
    </message>
    <message>
        <source>Remove Effects</source>
        <translation>Supprimer les effets</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>KeyList</name>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>The row above or below</source>
        <translation>Ligne du dessus ou du dessous</translation>
    </message>
    <message>
        <source>The cell to the left or right</source>
        <translation>Cellule de gauche ou de droite</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>Page précédente ou suivante</translation>
    </message>
    <message>
        <source>The first or last cell of the row</source>
        <translation>Première ou dernière cellule de la ligne</translation>
    </message>
    <message>
        <source>The first or last cell of the table</source>
        <translation>Première ou dernière cellule du tableau</translation>
    </message>
    <message>
        <source>Select further rows</source>
        <translation>Étendre la sélection de lignes</translation>
    </message>
    <message>
        <source>The next or previous cell</source>
        <translation>Cellule suivante ou précédente</translation>
    </message>
    <message>
        <source>Out of the table</source>
        <translation>Sortir du tableau</translation>
    </message>
    <message>
        <source>Switch the check box of the current cell</source>
        <translation>Cocher ou décocher la case de la cellule active</translation>
    </message>
    <message>
        <source>Edit the current cell, or open its list</source>
        <translation>Modifier la cellule active, ou ouvrir sa liste</translation>
    </message>
    <message>
        <source>The context menu of the selected rows</source>
        <translation>Menu contextuel des lignes sélectionnées</translation>
    </message>
    <message>
        <source>Markers Table</source>
        <translation>Tableau des marqueurs</translation>
    </message>
    <message>
        <source>Effects Table</source>
        <translation>Tableau des effets</translation>
    </message>
    <message>
        <source>Take the selected effects off the list; the project keeps them</source>
        <translation>Retirer de la liste les effets sélectionnés&#xa0;; le projet les conserve</translation>
    </message>
    <message>
        <source>Marker Overview</source>
        <translation>Vue d’ensemble des marqueurs</translation>
    </message>
    <message>
        <source>The previous or next marker</source>
        <translation>Marqueur précédent ou suivant</translation>
    </message>
    <message>
        <source>Zoom in or out</source>
        <translation>Zoom avant ou arrière</translation>
    </message>
    <message>
        <source>Show the whole sequence</source>
        <translation>Afficher toute la séquence</translation>
    </message>
    <message>
        <source>Show the whole sequence, then back to the table</source>
        <translation>Afficher toute la séquence, puis revenir au tableau</translation>
    </message>
    <message>
        <source>While a Cell Is Edited</source>
        <translation>Pendant la modification d’une cellule</translation>
    </message>
    <message>
        <source>Keep what was typed</source>
        <translation>Valider la saisie</translation>
    </message>
    <message>
        <source>Keep a typed in point, with the duration of the marker</source>
        <translation>Valider le point d’entrée saisi, en gardant la durée du marqueur</translation>
    </message>
    <message>
        <source>Keep what was typed and edit the next or previous cell</source>
        <translation>Valider la saisie et modifier la cellule suivante ou précédente</translation>
    </message>
    <message>
        <source>Leave the cell as it was</source>
        <translation>Laisser la cellule inchangée</translation>
    </message>
    <message>
        <source>Sheets and Alerts</source>
        <translation>Dialogues et alertes</translation>
    </message>
    <message>
        <source>The default button</source>
        <translation>Bouton par défaut</translation>
    </message>
    <message>
        <source>Cancel or close</source>
        <translation>Annuler ou fermer</translation>
    </message>
    <message>
        <source>The next or previous field</source>
        <translation>Champ suivant ou précédent</translation>
    </message>
    <message>
        <source>In the preview of notes: check or uncheck the selected rows</source>
        <translation>Dans l’aperçu des notes&#xa0;: cocher ou décocher les lignes sélectionnées</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Zoom the strips in or out</source>
        <translation>Zoom avant ou arrière sur les bandes</translation>
    </message>
    <message>
        <source>Show the whole cuts</source>
        <translation>Afficher les montages en entier</translation>
    </message>
    <message>
        <source>Scroll the strips</source>
        <translation>Faire défiler les bandes</translation>
    </message>
    <message>
        <source>Close the window</source>
        <translation>Fermer la fenêtre</translation>
    </message>
    <message>
        <source>The menu of the table&apos;s header: its columns</source>
        <translation>Le menu de l’en-tête du tableau&#xa0;: ses colonnes</translation>
    </message>
    <message>
        <source>Media Table</source>
        <translation>Tableau des médias</translation>
    </message>
    <message>
        <source>Open the file with its application</source>
        <translation>Ouvrir le fichier avec son application</translation>
    </message>
    <message>
        <source>Search Field</source>
        <translation>Champ de recherche</translation>
    </message>
    <message>
        <source>To the rows that were found</source>
        <translation>Aux lignes trouvées</translation>
    </message>
    <message>
        <source>Clear the search, then back to the table</source>
        <translation>Effacer la recherche, puis retour au tableau</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>Send to Premiere Pro</source>
        <translation>Envoyer vers Premiere Pro</translation>
    </message>
    <message>
        <source>Send to Final Cut Pro</source>
        <translation>Envoyer vers Final Cut Pro</translation>
    </message>
</context>
<context>
    <name>MarkerListPanels</name>
    <message>
        <source>Final Cut Pro X XML files</source>
        <translation>Fichiers XML Final Cut Pro X</translation>
    </message>
    <message>
        <source>Marker lists</source>
        <translation>Listes de marqueurs</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import Markers</source>
        <translation>Importer des marqueurs</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Export Markers</source>
        <translation>Exporter les marqueurs</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
</context>
<context>
    <name>MarkerOffset</name>
    <message>
        <source>Timecodes count at %1 frames per second, without drop frame.</source>
        <translation>Les timecodes comptent %1 images par seconde, sans drop frame.</translation>
    </message>
    <message>
        <source>Timecodes count at %1 frames per second, the rate of the table&apos;s first row, without drop frame.</source>
        <translation>Les timecodes comptent %1 images par seconde, la cadence de la première ligne du tableau, sans drop frame.</translation>
    </message>
    <message>
        <source>Timecodes count at %1 frames per second, the rate of the table&apos;s first row (%2), without drop frame.</source>
        <translation>Les timecodes comptent %1 images par seconde, la cadence de la première ligne du tableau (%2), sans drop frame.</translation>
    </message>
    <message>
        <source>%1 frame</source>
        <translation>%1 image</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 images</translation>
    </message>
    <message>
        <source>%1: “%2” moves from %3 to %4.</source>
        <translation>%1&#xa0;: «&#xa0;%2&#xa0;» passe de %3 à %4.</translation>
    </message>
    <message>
        <source>This is not a whole number of frames.</source>
        <translation>Ce n’est pas un nombre entier d’images.</translation>
    </message>
    <message>
        <source>This is before the start.</source>
        <translation>C’est avant le début.</translation>
    </message>
</context>
<context>
    <name>Message</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>Unable to load project</source>
        <translation>Impossible de charger le projet</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 is not installed on this system.</source>
        <translation>Final Cut Pro 7 n’est pas installé sur ce système.</translation>
    </message>
    <message>
        <source>Final Cut Pro gave no XML of the project.</source>
        <translation>Final Cut Pro n’a pas fourni de XML du projet.</translation>
    </message>
    <message>
        <source>An internal error ended the loading; the log tells more.</source>
        <translation>Une erreur interne a mis fin au chargement&#xa0;; le journal en dit plus.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is damaged and was repaired while it was opened (%2).</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est endommagé et a été réparé à l’ouverture (%2).</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was not read whole.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’a pas été lu en entier.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no editing project: %2. Nothing in it can be shown.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas un projet de montage&#xa0;: %2. Rien de son contenu ne peut être affiché.</translation>
    </message>
    <message>
        <source>its element &quot;%1&quot; is in the namespace &quot;%2&quot;, while those of a project are in none</source>
        <translation>son élément «&#xa0;%1&#xa0;» est dans l’espace de noms «&#xa0;%2&#xa0;», ceux d’un projet ne sont dans aucun</translation>
    </message>
    <message>
        <source>its root element &quot;%1&quot; is in the namespace &quot;%2&quot;, while those of a project are in none</source>
        <translation>son élément racine «&#xa0;%1&#xa0;» est dans l’espace de noms «&#xa0;%2&#xa0;», ceux d’un projet ne sont dans aucun</translation>
    </message>
    <message>
        <source>its root element is &quot;%1&quot; instead of &quot;xmeml&quot;</source>
        <translation>son élément racine est «&#xa0;%1&#xa0;» au lieu de «&#xa0;xmeml&#xa0;»</translation>
    </message>
    <message>
        <source>Not all that the project holds could be listed; the log tells why.</source>
        <translation>Tout le contenu du projet n’a pas pu être listé&#xa0;; le journal en donne la raison.</translation>
    </message>
    <message>
        <source>The project could not be written.</source>
        <translation>Impossible d’écrire le projet.</translation>
    </message>
    <message>
        <source>The project is being saved already.</source>
        <translation>Le projet est déjà en cours d’enregistrement.</translation>
    </message>
    <message>
        <source>The project is being sent already.</source>
        <translation>Le projet est déjà en cours d’envoi.</translation>
    </message>
    <message>
        <source>The project is sent to Final Cut Pro instead of being saved.</source>
        <translation>Le projet est envoyé vers Final Cut Pro au lieu d’être enregistré.</translation>
    </message>
    <message>
        <source>There is no project to save.</source>
        <translation>Il n’y a aucun projet à enregistrer.</translation>
    </message>
    <message>
        <source>The repaired file was not overwritten.</source>
        <translation>Le fichier réparé n’a pas été écrasé.</translation>
    </message>
    <message>
        <source>Saving was cancelled.</source>
        <translation>L’enregistrement a été annulé.</translation>
    </message>
    <message>
        <source>The file was changed by another program since it was opened. It was not overwritten.</source>
        <translation>Le fichier a été modifié par un autre programme depuis son ouverture. Il n’a pas été écrasé.</translation>
    </message>
    <message>
        <source>The project is being saved or sent and was left as it is. Please try again when that is over.</source>
        <translation>Le projet est en cours d’enregistrement ou d’envoi et n’a pas été modifié. Veuillez réessayer ensuite.</translation>
    </message>
    <message>
        <source>This file was repaired when it was opened</source>
        <translation>Ce fichier a été réparé à l’ouverture</translation>
    </message>
    <message>
        <source>Saving replaces the damaged file with the repaired project. Do you want to save it?</source>
        <translation>L’enregistrement remplace le fichier endommagé par le projet réparé. Voulez-vous l’enregistrer&#xa0;?</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; was changed by another program since it was opened</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» a été modifié par un autre programme depuis son ouverture</translation>
    </message>
    <message>
        <source>Overwriting the file loses what the other program saved. Do you want to overwrite it?</source>
        <translation>Si vous écrasez le fichier, ce que l’autre programme a enregistré sera perdu. Voulez-vous l’écraser&#xa0;?</translation>
    </message>
    <message>
        <source>Content is missing: %1, and %2 left out behind that.</source>
        <translation>Du contenu manque&#xa0;: %1, et au-delà %2.</translation>
    </message>
    <message>
        <source>Content is missing: %1 in a comment or instruction that does not end where it should.</source>
        <translation>Du contenu manque&#xa0;: %1 dans un commentaire ou une instruction qui ne se termine pas où il faut.</translation>
    </message>
    <message>
        <source>Content is missing from its place: the tags do not match, so elements near or behind line %1 may be outside of those that they belong to.</source>
        <translation>Du contenu n’est pas à sa place&#xa0;: les balises ne correspondent pas, et des éléments près de la ligne %1 ou au-delà peuvent être hors de ceux auxquels ils appartiennent.</translation>
    </message>
    <message>
        <source>Content is missing: &quot;&amp;&quot; or &quot;&lt;&quot; is no reference or tag in %1, the first on line %2.</source>
        <translation>Du contenu manque&#xa0;: «&#xa0;&amp;&#xa0;» ou «&#xa0;&lt;&#xa0;» n’est ni une référence ni une balise à %1, d’abord à la ligne %2.</translation>
    </message>
    <message>
        <source>Content is missing: %1, and what follows is no part of the project.</source>
        <translation>Du contenu manque&#xa0;: %1, et ce qui suit ne fait pas partie du projet.</translation>
    </message>
    <message>
        <source>Content is missing: the entities that the document type declares are not kept.</source>
        <translation>Du contenu manque&#xa0;: les entités que déclare le type de document ne sont pas conservées.</translation>
    </message>
    <message>
        <source>Content is missing: %1, but the file ends in the middle of an element.</source>
        <translation>Du contenu manque&#xa0;: %1, mais le fichier se termine au milieu d’un élément.</translation>
    </message>
    <message>
        <source>Content is missing: %1.</source>
        <translation>Du contenu manque&#xa0;: %1.</translation>
    </message>
    <message>
        <source>all %1 bytes could be read</source>
        <translation>les %1 octets ont tous pu être lus</translation>
    </message>
    <message>
        <source>%1 of %2 bytes could be read</source>
        <translation>%1 octets sur %2 ont pu être lus</translation>
    </message>
    <message>
        <source>1 element was</source>
        <translation>1 élément a été laissé de côté</translation>
    </message>
    <message>
        <source>%1 elements were</source>
        <translation>%1 éléments ont été laissés de côté</translation>
    </message>
    <message>
        <source>1 element is</source>
        <translation>1 élément se trouve</translation>
    </message>
    <message>
        <source>%1 elements are</source>
        <translation>%1 éléments se trouvent</translation>
    </message>
    <message>
        <source>1 place</source>
        <translation>1 endroit</translation>
    </message>
    <message>
        <source>%1 places</source>
        <translation>%1 endroits</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened as a project: %2</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» ne peut pas être ouvert comme projet&#xa0;: %2</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; does not exist.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’existe pas.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Impossible d’ouvrir le fichier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be read: %2.</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, not a project file.</source>
        <translation>«&#xa0;%1&#xa0;» est un dossier, pas un fichier de projet.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is empty.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» est vide.</translation>
    </message>
    <message>
        <source>there is not enough memory to read it.</source>
        <translation>il n’y a pas assez de mémoire pour le lire.</translation>
    </message>
    <message>
        <source>There is not enough memory to read it.</source>
        <translation>Il n’y a pas assez de mémoire pour le lire.</translation>
    </message>
    <message>
        <source>nothing in it can be read</source>
        <translation>rien n’y est lisible</translation>
    </message>
    <message>
        <source>loading was cancelled.</source>
        <translation>le chargement a été annulé.</translation>
    </message>
    <message>
        <source>reading it failed before its end.</source>
        <translation>la lecture a échoué avant la fin.</translation>
    </message>
    <message>
        <source>its elements are nested more than %1 deep.</source>
        <translation>ses éléments sont imbriqués sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>its document type lists more values than can be read.</source>
        <translation>son type de document énumère plus de valeurs qu’il n’est possible d’en lire.</translation>
    </message>
    <message>
        <source>a comment in it has more double hyphens than can be read.</source>
        <translation>l’un de ses commentaires a plus de doubles tirets qu’il n’est possible d’en lire.</translation>
    </message>
    <message>
        <source>it is not well-formed XML (%1).</source>
        <translation>ce n’est pas du XML bien formé (%1).</translation>
    </message>
    <message>
        <source>it holds no XML root element (%1).</source>
        <translation>il ne contient pas d’élément racine XML (%1).</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Il n’y a pas assez de mémoire.</translation>
    </message>
    <message>
        <source>The text is no XML element.</source>
        <translation>Le texte n’est pas un élément XML.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be written: %2.</source>
        <translation>Impossible d’écrire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read: %2.</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; could not be read. %2</source>
        <translation>Impossible de lire le fichier «&#xa0;%1&#xa0;». %2</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; could not be made.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Writing was cancelled.</source>
        <translation>L’écriture a été annulée.</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>The property list is damaged: %1.</source>
        <translation>La liste de propriétés est endommagée&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The property list could not be written.</source>
        <translation>Impossible d’écrire la liste de propriétés.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>Impossible de lancer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 could not be started: too many open files</source>
        <translation>Impossible de lancer %1&#xa0;: trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>%1 was given up.</source>
        <translation>%1 a été abandonné.</translation>
    </message>
    <message>
        <source>%1 did not finish within %2 seconds.</source>
        <translation>%1 ne s’est pas terminé en %2 secondes.</translation>
    </message>
    <message>
        <source>%1 ended unexpectedly.</source>
        <translation>%1 s’est terminé de façon inattendue.</translation>
    </message>
    <message>
        <source>A temporary file could not be written: %1.</source>
        <translation>Impossible d’écrire un fichier temporaire&#xa0;: %1.</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>opération non autorisée</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>plus de place sur le disque</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>n’est pas un dossier</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nom de fichier trop long</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>trop de liens symboliques</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>quota de disque dépassé</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>fichier trop volumineux</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>périphérique occupé</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>connexion refusée</translation>
    </message>
    <message>
        <source>Unknown error</source>
        <translation>erreur inconnue</translation>
    </message>
    <message>
        <source>Unable to add marker</source>
        <translation>Impossible d’ajouter le marqueur</translation>
    </message>
    <message>
        <source>You need at least one sequence in your project in order to add a marker.</source>
        <translation>Pour ajouter un marqueur, le projet doit contenir au moins une séquence.</translation>
    </message>
    <message>
        <source>Unable to create marker</source>
        <translation>Impossible de créer le marqueur</translation>
    </message>
    <message>
        <source>Unable to remove marker</source>
        <translation>Impossible de supprimer le marqueur</translation>
    </message>
    <message>
        <source>Unable to change setting</source>
        <translation>Impossible de modifier le réglage</translation>
    </message>
    <message>
        <source>XML document cannot be found.</source>
        <translation>Le document XML est introuvable.</translation>
    </message>
    <message>
        <source>It was removed from the project.</source>
        <translation>L’élément a été supprimé du projet.</translation>
    </message>
    <message>
        <source>An internal error occurred; the log tells more.</source>
        <translation>Une erreur interne s’est produite&#xa0;; le journal en dit plus.</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this marker?</source>
        <translation>Voulez-vous vraiment supprimer ce marqueur&#xa0;?</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove these markers?</source>
        <translation>Voulez-vous vraiment supprimer ces marqueurs&#xa0;?</translation>
    </message>
    <message>
        <source>The name or comment holds XML markup.</source>
        <translation>Le nom ou le commentaire contient du balisage XML.</translation>
    </message>
    <message>
        <source>The title &quot;%1&quot; would give the identifier %2, which the field &quot;%3&quot; has.</source>
        <translation>Le titre «&#xa0;%1&#xa0;» donnerait l’identifiant %2, qui est celui du champ «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; has the identifier %2 already.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» a déjà l’identifiant %2.</translation>
    </message>
    <message>
        <source>%1 of %2 markers is listed under another sequence or clip than their own.</source>
        <translation>%1 marqueur sur %2 est listé sous une autre séquence ou un autre clip que les siens.</translation>
    </message>
    <message>
        <source>%1 of %2 markers are listed under another sequence or clip than their own.</source>
        <translation>%1 marqueurs sur %2 sont listés sous une autre séquence ou un autre clip que les leurs.</translation>
    </message>
    <message>
        <source>No name specified</source>
        <translation>Aucun nom indiqué</translation>
    </message>
    <message>
        <source>Please choose a name for this preset.</source>
        <translation>Veuillez choisir un nom pour ce préréglage.</translation>
    </message>
    <message>
        <source>Unable to create preset</source>
        <translation>Impossible de créer le préréglage</translation>
    </message>
    <message>
        <source>Unable to delete preset</source>
        <translation>Impossible de supprimer le préréglage</translation>
    </message>
    <message>
        <source>Please ensure your permissions are correct for the directory %1</source>
        <translation>Veuillez vérifier vos droits d’accès au dossier %1</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; contains a slash, which separates folders.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» contient une barre oblique, qui sépare les dossiers.</translation>
    </message>
    <message>
        <source>The name contains a character that the name of a file cannot contain.</source>
        <translation>Le nom contient un caractère impossible dans un nom de fichier.</translation>
    </message>
    <message>
        <source>A preset needs a name.</source>
        <translation>Un préréglage doit avoir un nom.</translation>
    </message>
    <message>
        <source>There are no presets.</source>
        <translation>Il n’y a pas de préréglages.</translation>
    </message>
    <message>
        <source>There is a preset named &quot;%1&quot; already.</source>
        <translation>Il existe déjà un préréglage nommé «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be renamed: %2.</source>
        <translation>Impossible de renommer «&#xa0;%1&#xa0;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot;?</source>
        <translation>Supprimer le préréglage «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Its labels will be lost. Markers keep their colors.</source>
        <translation>Ses libellés seront perdus. Les marqueurs gardent leurs couleurs.</translation>
    </message>
    <message>
        <source>This preset already exists</source>
        <translation>Ce préréglage existe déjà</translation>
    </message>
    <message>
        <source>Would you like to overwrite it?</source>
        <translation>Voulez-vous l’écraser&#xa0;?</translation>
    </message>
    <message>
        <source>Unable to remove effect</source>
        <translation>Impossible de supprimer l’effet</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove this effect?</source>
        <translation>Voulez-vous vraiment supprimer cet effet&#xa0;?</translation>
    </message>
    <message>
        <source>Are you sure you wish to remove these effects?</source>
        <translation>Voulez-vous vraiment supprimer ces effets&#xa0;?</translation>
    </message>
    <message>
        <source>%1 item</source>
        <translation>%1 élément</translation>
    </message>
    <message>
        <source>%1 items</source>
        <translation>%1 éléments</translation>
    </message>
    <message>
        <source>%1 item (%2 selected)</source>
        <translation>%1 élément (%2 sélectionné(s))</translation>
    </message>
    <message>
        <source>%1 items (%2 selected)</source>
        <translation>%1 éléments (%2 sélectionné(s))</translation>
    </message>
    <message>
        <source>Total size: %1</source>
        <translation>Taille totale&#xa0;: %1</translation>
    </message>
    <message>
        <source>Total number of files: %1</source>
        <translation>Nombre total de fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Total size of filtered media: %1</source>
        <translation>Taille totale des médias filtrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Number of filtered media files: %1</source>
        <translation>Nombre de médias filtrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Largest file: Unknown</source>
        <translation>Plus gros fichier&#xa0;: inconnu</translation>
    </message>
    <message>
        <source>Smallest file: Unknown</source>
        <translation>Plus petit fichier&#xa0;: inconnu</translation>
    </message>
    <message>
        <source>Largest file: %1 (%2)</source>
        <translation>Plus gros fichier&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Smallest file: %1 (%2)</source>
        <translation>Plus petit fichier&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>“%1” is on a volume that does not answer. Check its connection</source>
        <translation>«&#xa0;%1&#xa0;» se trouve sur un volume qui ne répond pas. Vérifiez sa connexion</translation>
    </message>
    <message>
        <source>“%1” is missing from “%2”. Media ▸ Relink… finds it in other folders</source>
        <translation>«&#xa0;%1&#xa0;» manque dans «&#xa0;%2&#xa0;». Médias ▸ Relier… le retrouve dans d’autres dossiers</translation>
    </message>
    <message>
        <source>No file is selected. Click its row first</source>
        <translation>Aucun fichier n’est sélectionné. Cliquez d’abord sur sa ligne</translation>
    </message>
    <message>
        <source>There is no file browser that could show the file</source>
        <translation>Aucun gestionnaire de fichiers ne peut montrer le fichier</translation>
    </message>
    <message>
        <source>There is no program that could open the file. The system’s settings tell which program opens files of its kind</source>
        <translation>Aucun programme ne peut ouvrir le fichier. Les réglages du système indiquent quel programme ouvre les fichiers de ce type</translation>
    </message>
    <message>
        <source>The project names no valid place for this file. Connect it again in the editing application</source>
        <translation>Le projet n’indique pas d’emplacement valide pour ce fichier. Reconnectez-le dans le logiciel de montage</translation>
    </message>
    <message>
        <source>The media files cannot be relinked now.</source>
        <translation>Impossible de relier les médias maintenant.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot stand in an XML file.</source>
        <translation>Le nom «&#xa0;%1&#xa0;» ne peut pas figurer dans un fichier XML.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no media hash list.</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas une liste d’empreintes de médias.</translation>
    </message>
    <message>
        <source>%1 of %2, %3 files read</source>
        <translation>%1 sur %2, %3 fichiers lus</translation>
    </message>
    <message>
        <source>%1 of %2, %3 files read, %4:%5:%6 left</source>
        <translation>%1 sur %2, %3 fichiers lus, encore %4:%5:%6</translation>
    </message>
    <message>
        <source>Error saving marker list</source>
        <translation>Erreur à l’enregistrement de la liste de marqueurs</translation>
    </message>
    <message>
        <source>1 row holds a tab or a line break; other systems will not be able to read it</source>
        <translation>1 ligne contient une tabulation ou un saut de ligne&#xa0;; d’autres systèmes ne pourront pas la lire</translation>
    </message>
    <message>
        <source>%1 rows hold a tab or a line break; other systems will not be able to read them</source>
        <translation>%1 lignes contiennent une tabulation ou un saut de ligne&#xa0;; d’autres systèmes ne pourront pas les lire</translation>
    </message>
    <message>
        <source>No markers to import</source>
        <translation>Aucun marqueur à importer</translation>
    </message>
    <message>
        <source>There were no markers in the file or it is an invalid format.</source>
        <translation>Le fichier ne contient aucun marqueur ou son format n’est pas valide.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the markers of the file.</source>
        <translation>Il n’y a pas assez de mémoire pour lire les marqueurs du fichier.</translation>
    </message>
    <message>
        <source>There is not enough memory to read the list.</source>
        <translation>Il n’y a pas assez de mémoire pour lire la liste.</translation>
    </message>
    <message>
        <source>%1 of %2 rows could not be added</source>
        <translation>%1 lignes sur %2 n’ont pas pu être ajoutées</translation>
    </message>
    <message>
        <source>line %1, “%2”: %3</source>
        <translation>ligne %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>marker %1, “%2”: %3</source>
        <translation>marqueur %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1, line %2, “%3”: %4</source>
        <translation>%1, ligne %2, «&#xa0;%3&#xa0;»&#xa0;: %4</translation>
    </message>
    <message>
        <source>%1, marker %2, “%3”: %4</source>
        <translation>%1, marqueur %2, «&#xa0;%3&#xa0;»&#xa0;: %4</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… et %1 de plus</translation>
    </message>
    <message>
        <source>There is no sequence to add it to.</source>
        <translation>Il n’y a aucune séquence à laquelle l’ajouter.</translation>
    </message>
    <message>
        <source>Markers are still loading</source>
        <translation>Les marqueurs sont encore en cours de chargement</translation>
    </message>
    <message>
        <source>Please wait for markers to finish loading before attempting this operation.</source>
        <translation>Veuillez attendre la fin du chargement des marqueurs avant de tenter cette opération.</translation>
    </message>
    <message>
        <source>The file is not a text.</source>
        <translation>Le fichier n’est pas un texte.</translation>
    </message>
    <message>
        <source>The JSON is damaged: %1.</source>
        <translation>Le JSON est endommagé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>There is no time.</source>
        <translation>Aucun temps n’est indiqué.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Colonne %1</translation>
    </message>
    <message>
        <source>“%1” is no time.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un temps.</translation>
    </message>
    <message>
        <source>There are %1 fields instead of five to eight.</source>
        <translation>Il y a %1 champs au lieu de cinq à huit.</translation>
    </message>
    <message>
        <source>%1 frames a second have no “%2”.</source>
        <translation>«&#xa0;%2&#xa0;» n’existe pas à %1 images par seconde.</translation>
    </message>
    <message>
        <source>A bar was replaced by a slash in %1.</source>
        <translation>Une barre verticale a été remplacée par une barre oblique dans %1.</translation>
    </message>
    <message>
        <source>Times are cut to whole seconds.</source>
        <translation>Les temps sont tronqués à la seconde.</translation>
    </message>
    <message>
        <source>The duration of %1 is left out.</source>
        <translation>La durée de %1 est omise.</translation>
    </message>
    <message>
        <source>The colour of %1 is replaced by the nearest.</source>
        <translation>La couleur de %1 est remplacée par la plus proche.</translation>
    </message>
    <message>
        <source>Tabs and line breaks are blanks in %1.</source>
        <translation>Les tabulations et sauts de ligne deviennent des espaces dans %1.</translation>
    </message>
    <message>
        <source>The comment of %1 is left out.</source>
        <translation>Le commentaire de %1 est omis.</translation>
    </message>
    <message>
        <source>The custom fields of %1 are left out.</source>
        <translation>Les champs personnalisés de %1 sont omis.</translation>
    </message>
    <message>
        <source>Colours are left out.</source>
        <translation>Les couleurs sont omises.</translation>
    </message>
    <message>
        <source>The timecodes of several frame rates stand in one list.</source>
        <translation>Des timecodes de cadences différentes figurent dans une même liste.</translation>
    </message>
    <message>
        <source>1 marker</source>
        <translation>1 marqueur</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 marqueurs</translation>
    </message>
    <message>
        <source>1 text</source>
        <translation>1 texte</translation>
    </message>
    <message>
        <source>%1 texts</source>
        <translation>%1 textes</translation>
    </message>
    <message>
        <source>Sending to Final Cut Pro...</source>
        <translation>Envoi vers Final Cut Pro…</translation>
    </message>
    <message>
        <source>Sending to Premiere Pro...</source>
        <translation>Envoi vers Premiere Pro…</translation>
    </message>
    <message>
        <source>No changes to send to Final Cut Pro</source>
        <translation>Aucune modification à envoyer vers Final Cut Pro</translation>
    </message>
    <message>
        <source>Vantrell only sends modified sequences to Final Cut Pro and no sequences have been changed yet.</source>
        <translation>Vantrell n’envoie vers Final Cut Pro que les séquences modifiées, et aucune ne l’a encore été.</translation>
    </message>
    <message>
        <source>Changes successfully sent to Final Cut Pro</source>
        <translation>Modifications envoyées vers Final Cut Pro</translation>
    </message>
    <message>
        <source>Sequences have been duplicated and placed inside the Vantrell bin.</source>
        <translation>Les séquences ont été dupliquées et placées dans le chutier Vantrell.</translation>
    </message>
    <message>
        <source>Unable to send to Final Cut Pro</source>
        <translation>Envoi vers Final Cut Pro impossible</translation>
    </message>
    <message>
        <source>Unable to send to Premiere Pro</source>
        <translation>Envoi vers Premiere Pro impossible</translation>
    </message>
    <message>
        <source>An error occurred while sending data.</source>
        <translation>Une erreur s’est produite pendant l’envoi des données.</translation>
    </message>
    <message>
        <source>Project successfully sent to Premiere Pro</source>
        <translation>Projet envoyé vers Premiere Pro</translation>
    </message>
    <message>
        <source>A duplicate project has been created.</source>
        <translation>Une copie du projet a été créée.</translation>
    </message>
    <message>
        <source>There is no project to send.</source>
        <translation>Il n’y a aucun projet à envoyer.</translation>
    </message>
    <message>
        <source>Premiere Pro now configured</source>
        <translation>Premiere Pro est maintenant configuré</translation>
    </message>
    <message>
        <source>Please close and relaunch Adobe Premiere Pro in order to use it with this application.</source>
        <translation>Veuillez quitter et relancer Adobe Premiere Pro pour l’utiliser avec ce programme.</translation>
    </message>
    <message>
        <source>Critical error: unable to load FCP project loader dialog.</source>
        <translation>Erreur critique&#xa0;: impossible de charger la fenêtre d’ouverture des projets FCP.</translation>
    </message>
    <message>
        <source>You must reinstall the application.</source>
        <translation>Vous devez réinstaller le programme.</translation>
    </message>
    <message>
        <source>Error: unable to load About dialog.</source>
        <translation>Erreur&#xa0;: impossible de charger la fenêtre À propos.</translation>
    </message>
    <message>
        <source>Please report this error to Orvandel.</source>
        <translation>Veuillez signaler cette erreur à Orvandel.</translation>
    </message>
    <message>
        <source>There are no rows to report.</source>
        <translation>Il n’y a aucune ligne pour le rapport.</translation>
    </message>
    <message>
        <source>A PDF needs the package &quot;vantrell-print&quot;, which is not installed.</source>
        <translation>Un PDF nécessite le paquet «&#xa0;vantrell-print&#xa0;», qui n’est pas installé.</translation>
    </message>
    <message>
        <source>The PDF could not be made.</source>
        <translation>Impossible de créer le PDF.</translation>
    </message>
    <message>
        <source>The PDF could not be written: %1.</source>
        <translation>Impossible d’écrire le PDF&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The pages could not be put together: %1.</source>
        <translation>Impossible d’assembler les pages&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The report could not be loaded.</source>
        <translation>Impossible de charger le rapport.</translation>
    </message>
    <message>
        <source>The web engine ended too soon.</source>
        <translation>Le moteur web s’est arrêté trop tôt.</translation>
    </message>
    <message>
        <source>The web engine made no pages of the report.</source>
        <translation>Le moteur web n’a produit aucune page du rapport.</translation>
    </message>
    <message>
        <source>The property list nests more than %1 levels.</source>
        <translation>La liste de propriétés est imbriquée sur plus de %1 niveaux.</translation>
    </message>
    <message>
        <source>One of the effects was removed from the project.</source>
        <translation>L’un des effets a été supprimé du projet.</translation>
    </message>
    <message>
        <source>%1 of the effects were removed from the project.</source>
        <translation>%1 des effets ont été supprimés du projet.</translation>
    </message>
    <message>
        <source>Markers of %1 sequences and clips stand in one list.</source>
        <translation>Les marqueurs de %1 séquences et clips figurent dans une même liste.</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %3</translation>
    </message>
    <message>
        <source>The line has %1 fields instead of %2.</source>
        <translation>La ligne a %1 champs au lieu de %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is no media hash list: %2</source>
        <translation>Le fichier «&#xa0;%1&#xa0;» n’est pas une liste d’empreintes de médias&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>PrintPlugin</name>
    <message>
        <source>Printing needs the package “vantrell-print”, which is not installed.</source>
        <translation>L’impression nécessite le paquet «&#xa0;vantrell-print&#xa0;», qui n’est pas installé.</translation>
    </message>
    <message>
        <source>The package “vantrell-print” does not fit this program: %1</source>
        <translation>Le paquet «&#xa0;vantrell-print&#xa0;» ne convient pas à ce programme&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ReplaceQuestion</name>
    <message>
        <source>“%1” already exists. Do you want to replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà. Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>What the file in “%1” contains will be lost.</source>
        <translation>Le contenu du fichier dans «&#xa0;%1&#xa0;» sera perdu.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
</context>
<context>
    <name>TimecodeEntry</name>
    <message>
        <source>An empty field</source>
        <translation>Un champ vide</translation>
    </message>
    <message>
        <source>%1 is %2, frame %3</source>
        <translation>%1 donne %2, image %3</translation>
    </message>
    <message>
        <source>%1 is %2, frame %3 of %4</source>
        <translation>%1 donne %2, image %3 de %4</translation>
    </message>
    <message>
        <source>the sequence</source>
        <translation>la séquence</translation>
    </message>
    <message>
        <source>This is before the start of %1 at %2.</source>
        <translation>C’est avant le début de %1 à %2.</translation>
    </message>
    <message>
        <source>This is after the end of %1 at %2.</source>
        <translation>C’est après la fin de %1 à %2.</translation>
    </message>
    <message>
        <source>%1 is no duration</source>
        <translation>%1 n’est pas une durée</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 image</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 images</translation>
    </message>
    <message>
        <source>%1 is %2, %3, to %4</source>
        <translation>%1 donne %2, %3, jusqu’à %4</translation>
    </message>
    <message>
        <source>This ends after the end of %1 at %2.</source>
        <translation>La fin se situe après celle de %1, à %2.</translation>
    </message>
    <message>
        <source>Only digits, colons, points and commas make a timecode.</source>
        <translation>Un timecode ne contient que des chiffres, deux-points, points et virgules.</translation>
    </message>
    <message>
        <source>Digits are missing between two separators; points count as zeros only at the end.</source>
        <translation>Il manque des chiffres entre deux séparateurs&#xa0;; les points ne valent des zéros qu’à la fin.</translation>
    </message>
    <message>
        <source>A digit is missing: fields after a colon need two.</source>
        <translation>Il manque un chiffre&#xa0;: les champs après un deux-points en demandent deux.</translation>
    </message>
    <message>
        <source>There are too many digits; only the last eight count.</source>
        <translation>Il y a trop de chiffres&#xa0;; seuls les huit derniers comptent.</translation>
    </message>
    <message>
        <source>Digits are missing: hours, minutes, seconds and frames are needed.</source>
        <translation>Il manque des chiffres&#xa0;: heures, minutes, secondes et images sont nécessaires.</translation>
    </message>
    <message>
        <source>There are too many fields; only the first four count.</source>
        <translation>Il y a trop de champs&#xa0;; seuls les quatre premiers comptent.</translation>
    </message>
    <message>
        <source>A digit is missing: each field needs two.</source>
        <translation>Il manque un chiffre&#xa0;: chaque champ en demande deux.</translation>
    </message>
    <message>
        <source>Hours cannot exceed 23.</source>
        <translation>Les heures ne peuvent pas dépasser 23.</translation>
    </message>
    <message>
        <source>Minutes cannot exceed 59.</source>
        <translation>Les minutes ne peuvent pas dépasser 59.</translation>
    </message>
    <message>
        <source>Seconds cannot exceed 59.</source>
        <translation>Les secondes ne peuvent pas dépasser 59.</translation>
    </message>
    <message>
        <source>Frames cannot exceed %1 at this rate.</source>
        <translation>À cette cadence, les images ne peuvent pas dépasser %1.</translation>
    </message>
    <message>
        <source>Drop-frame timecode leaves this number out.</source>
        <translation>Le timecode drop frame saute ce numéro.</translation>
    </message>
</context>
<context>
    <name>Troubleshooting</name>
    <message>
        <source>Unable to show the log</source>
        <translation>Impossible d’afficher le journal</translation>
    </message>
    <message>
        <source>There are no logs.</source>
        <translation>Il n’y a pas de journaux.</translation>
    </message>
    <message>
        <source>There is no log yet, or no program to show it with.</source>
        <translation>Il n’y a pas encore de journal, ou aucun programme pour l’afficher.</translation>
    </message>
    <message>
        <source>No helper program was run yet, or there is no program to show the log with.</source>
        <translation>Aucun programme auxiliaire n’a encore été lancé, ou aucun programme ne peut afficher le journal.</translation>
    </message>
    <message>
        <source>The logs cannot be read.</source>
        <translation>Impossible de lire les journaux.</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>B</source>
        <translation>o</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
</context>
<context>
    <name>UnsavedChanges</name>
    <message>
        <source>1 marker</source>
        <translation>1 marqueur</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 marqueurs</translation>
    </message>
    <message>
        <source>1 effect</source>
        <translation>1 effet</translation>
    </message>
    <message>
        <source>%1 effects</source>
        <translation>%1 effets</translation>
    </message>
    <message>
        <source>1 media file</source>
        <translation>1 média</translation>
    </message>
    <message>
        <source>%1 media files</source>
        <translation>%1 médias</translation>
    </message>
    <message>
        <source>1 change</source>
        <translation>1 modification</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 modifications</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <comment>rows</comment>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <comment>changes to rows</comment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <comment>changes in sequences</comment>
        <translation>%1 dans %2</translation>
    </message>
    <message>
        <source>1 sequence</source>
        <translation>1 séquence</translation>
    </message>
    <message>
        <source>%1 sequences</source>
        <translation>%1 séquences</translation>
    </message>
</context>
<context>
    <name>UserManual</name>
    <message>
        <source>The user manual is not installed: there is no file “%1”</source>
        <translation>Le manuel de l’utilisateur n’est pas installé&#xa0;: le fichier «&#xa0;%1&#xa0;» n’existe pas</translation>
    </message>
    <message>
        <source>There is no program that could show the manual. Open the file “%1” in a web browser</source>
        <translation>Aucun programme ne peut afficher le manuel. Ouvrez le fichier «&#xa0;%1&#xa0;» dans un navigateur web</translation>
    </message>
</context>
<context>
    <name>Value</name>
    <message>
        <source>Movie Clip</source>
        <translation>Clip vidéo</translation>
    </message>
    <message>
        <source>Audio Clip</source>
        <translation>Clip audio</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Générateur</translation>
    </message>
    <message>
        <source>Transition</source>
        <translation>Transition</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Turquoise</source>
        <translation>Turquoise</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Create preset...</source>
        <translation>Créer un préréglage…</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>unused</source>
        <translation>inutilisé</translation>
    </message>
    <message>
        <source>duplicate</source>
        <translation>en double</translation>
    </message>
    <message>
        <source>still</source>
        <translation>image fixe</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 images</translation>
    </message>
    <message>
        <source>same name</source>
        <translation>même nom</translation>
    </message>
    <message>
        <source>other Unicode form</source>
        <translation>autre forme Unicode</translation>
    </message>
    <message>
        <source>other case</source>
        <translation>autre casse</translation>
    </message>
    <message>
        <source>other escapes</source>
        <translation>autres échappements</translation>
    </message>
    <message>
        <source>other duration</source>
        <translation>autre durée</translation>
    </message>
    <message>
        <source>other timecode</source>
        <translation>autre timecode</translation>
    </message>
    <message>
        <source>other reel</source>
        <translation>autre bobine</translation>
    </message>
    <message>
        <source>other rate</source>
        <translation>autre cadence</translation>
    </message>
    <message>
        <source>there</source>
        <translation>présent</translation>
    </message>
    <message>
        <source>carried</source>
        <translation>reporté</translation>
    </message>
    <message>
        <source>nearest</source>
        <translation>approché</translation>
    </message>
    <message>
        <source>gone</source>
        <translation>disparu</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Remplacé</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Slipped</source>
        <translation>Glissé</translation>
    </message>
    <message>
        <source>Trimmed</source>
        <translation>Raccordé</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Moved</source>
        <translation>Déplacé</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>%1 frames (%2 %)</source>
        <translation>%1 images (%2 %)</translation>
    </message>
</context>
<context>
    <name>WebEngine</name>
    <message>
        <source>This system keeps the web engine from locking up what it shows (it allows no user name spaces), so nothing is printed.</source>
        <translation>Ce système empêche le moteur web d’isoler ce qu’il affiche (il n’autorise pas les espaces de noms utilisateur)&#xa0;; rien n’est donc imprimé.</translation>
    </message>
</context>
<context>
    <name>WebPages</name>
    <message>
        <source>The page has no valid address</source>
        <translation>La page n’a pas d’adresse valable</translation>
    </message>
    <message>
        <source>“%1” is no web address. Edit ▸ Preferences… has the address of each help page.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas une adresse web. Édition ▸ Préférences… contient l’adresse de chaque page d’aide.</translation>
    </message>
    <message>
        <source>The page cannot be shown</source>
        <translation>Impossible d’afficher la page</translation>
    </message>
    <message>
        <source>There is no browser to show it with: %1</source>
        <translation>Aucun navigateur ne peut l’afficher&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>vantrell::AboutPanel</name>
    <message>
        <source>Version %@</source>
        <translation>Version %@</translation>
    </message>
    <message>
        <source>Media, effects and markers of an editing project.</source>
        <translation>Médias, effets et marqueurs d’un projet de montage.</translation>
    </message>
    <message>
        <source>Made by Orvandel.</source>
        <translation>Réalisé par Orvandel.</translation>
    </message>
    <message>
        <source>About Vantrell</source>
        <translation>À propos de Vantrell</translation>
    </message>
</context>
<context>
    <name>vantrell::AppController</name>
    <message>
        <source>Browse for a Final Cut Pro 7 project or XML file</source>
        <translation>Choisir un projet Final Cut Pro 7 ou un fichier XML</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)</source>
        <translation>Projets Final Cut Pro 7 et fichiers XML (*.fcp *.xml *.FCP *.XML)</translation>
    </message>
    <message>
        <source>The sample project could not be copied: %1</source>
        <translation>Impossible de copier le projet d’exemple&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Choose a folder for the logs</source>
        <translation>Choisir un dossier pour les journaux</translation>
    </message>
    <message>
        <source>The logs were gathered</source>
        <translation>Les journaux ont été rassemblés</translation>
    </message>
    <message>
        <source>Unable to gather the logs</source>
        <translation>Impossible de rassembler les journaux</translation>
    </message>
</context>
<context>
    <name>vantrell::CandidateDelegate</name>
    <message>
        <source>File to relink to</source>
        <translation>Fichier auquel relier</translation>
    </message>
</context>
<context>
    <name>vantrell::CarriedMarkerModel</name>
    <message>
        <source>no place left</source>
        <translation>plus d’emplacement</translation>
    </message>
    <message>
        <source>added</source>
        <translation>ajouté</translation>
    </message>
    <message>
        <source>It was added to the new cut.</source>
        <translation>Il a été ajouté au nouveau montage.</translation>
    </message>
    <message>
        <source>The new cut has this marker there already. It is not added again.</source>
        <translation>Le nouveau montage contient déjà ce marqueur à cet endroit. Il ne sera pas ajouté une seconde fois.</translation>
    </message>
    <message>
        <source>It goes to where its picture went.</source>
        <translation>Il suit son image à son nouvel emplacement.</translation>
    </message>
    <message>
        <source>It goes near its picture, or to a place that has to be looked at.</source>
        <translation>Il est placé près de son image, ou à un endroit qui reste à vérifier.</translation>
    </message>
    <message>
        <source>Its picture is gone. Tick it, or enter a timecode under “New”, to add it nevertheless.</source>
        <translation>Son image a disparu. Cochez-le, ou saisissez un timecode sous «&#xa0;Nouveau&#xa0;», pour l’ajouter quand même.</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marqueur</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Ancien</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
<context>
    <name>vantrell::ChangeTableModel</name>
    <message>
        <source>Old: %1, %2 to %3</source>
        <translation>Ancien&#xa0;: %1, de %2 à %3</translation>
    </message>
    <message>
        <source>New: %1, %2 to %3</source>
        <translation>Nouveau&#xa0;: %1, de %2 à %3</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Ancien</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
<context>
    <name>vantrell::ChangedFileSheet</name>
    <message>
        <source>“%1” was changed by another program.</source>
        <translation>«&#xa0;%1&#xa0;» a été modifié par un autre programme.</translation>
    </message>
    <message>
        <source>Someone else has saved it since you opened it. If you overwrite it, those changes are lost; if you reload it, yours are.</source>
        <translation>Quelqu’un d’autre l’a enregistré depuis que vous l’avez ouvert. Si vous l’écrasez, ces modifications seront perdues&#xa0;; si vous le rechargez, ce sont les vôtres qui le seront.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Écraser</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
</context>
<context>
    <name>vantrell::CompareChoiceSheet</name>
    <message>
        <source>A project &amp;file</source>
        <translation>Un &amp;fichier de projet</translation>
    </message>
    <message>
        <source>An &amp;open project:</source>
        <translation>Un projet &amp;ouvert&#xa0;:</translation>
    </message>
    <message>
        <source>Another sequence of &amp;this project</source>
        <translation>Une autre &amp;séquence de ce projet</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Compare this project with:</source>
        <translation>Comparer ce projet avec&#xa0;:</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projet ouvert</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>Co&amp;mparer</translation>
    </message>
</context>
<context>
    <name>vantrell::CompareWindow</name>
    <message>
        <source>Compare Sequences of “%1”</source>
        <translation>Comparer des séquences de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Compare “%1” with “%2”</source>
        <translation>Comparer «&#xa0;%1&#xa0;» avec «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Old sequence</source>
        <translation>Ancienne séquence</translation>
    </message>
    <message>
        <source>New sequence</source>
        <translation>Nouvelle séquence</translation>
    </message>
    <message>
        <source>&amp;Swap</source>
        <translation>&amp;Permuter</translation>
    </message>
    <message>
        <source>Make the old cut the new one</source>
        <translation>Faire de l’ancien montage le nouveau</translation>
    </message>
    <message>
        <source>Compare A&amp;gain</source>
        <translation>Comparer de &amp;nouveau</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Comparaison…</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Show all of both cuts</source>
        <translation>Afficher les deux montages en entier</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Markers of the old cut</source>
        <translation>Marqueurs de l’ancien montage</translation>
    </message>
    <message>
        <source>&amp;Tick All</source>
        <translation>&amp;Tout cocher</translation>
    </message>
    <message>
        <source>Tick all markers that have a place</source>
        <translation>Cocher tous les marqueurs qui ont un emplacement</translation>
    </message>
    <message>
        <source>Tick &amp;None</source>
        <translation>Tout &amp;décocher</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>&amp;CSV for Spreadsheets…</source>
        <translation>&amp;CSV pour tableurs…</translation>
    </message>
    <message>
        <source>&amp;HTML Page…</source>
        <translation>Page &amp;HTML…</translation>
    </message>
    <message>
        <source>&amp;EDL Text…</source>
        <translation>Texte &amp;EDL…</translation>
    </message>
    <message>
        <source>&amp;Add to This Project</source>
        <translation>A&amp;jouter à ce projet</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Old cut:</source>
        <translation>Ancien montage&#xa0;:</translation>
    </message>
    <message>
        <source>Old cut, in “%1”:</source>
        <translation>Ancien montage, dans «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>New cut:</source>
        <translation>Nouveau montage&#xa0;:</translation>
    </message>
    <message>
        <source>New cut, in “%1”:</source>
        <translation>Nouveau montage, dans «&#xa0;%1&#xa0;»&#xa0;:</translation>
    </message>
    <message>
        <source>The cuts were not compared.</source>
        <translation>Les montages n’ont pas été comparés.</translation>
    </message>
    <message>
        <source>A project was changed since the cuts were compared.</source>
        <translation>Un projet a été modifié depuis la comparaison des montages.</translation>
    </message>
    <message>
        <source>“%1” was closed or loaded again. To add markers or compare again, choose Compare with… once more.</source>
        <translation>«&#xa0;%1&#xa0;» a été fermé ou rechargé. Pour ajouter des marqueurs ou refaire la comparaison, choisissez Comparer avec… à nouveau.</translation>
    </message>
    <message>
        <source>1 marker added</source>
        <translation>1 marqueur ajouté</translation>
    </message>
    <message>
        <source>%1 markers added</source>
        <translation>%1 marqueurs ajoutés</translation>
    </message>
    <message>
        <source>Nothing has changed.</source>
        <translation>Rien n’a changé.</translation>
    </message>
    <message>
        <source>1 event has changed.</source>
        <translation>1 événement a changé.</translation>
    </message>
    <message>
        <source>%1 events have changed.</source>
        <translation>%1 événements ont changé.</translation>
    </message>
    <message>
        <source>Markers of the old cut: %1 carried, %2 nearest, %3 gone, %4 there; %5 ticked</source>
        <translation>Marqueurs de l’ancien montage&#xa0;: %1 reportés, %2 approchés, %3 disparus, %4 présents&#xa0;; %5 cochés</translation>
    </message>
    <message>
        <source>The old cut has no markers.</source>
        <translation>L’ancien montage n’a aucun marqueur.</translation>
    </message>
    <message>
        <source>Markers are added to the new cut, which is in “%1”. Swap the cuts if it is the old one, or open it and compare it with this project.</source>
        <translation>Les marqueurs sont ajoutés au nouveau montage, qui se trouve dans «&#xa0;%1&#xa0;». Permutez les montages si c’est l’ancien, ou ouvrez-le et comparez-le avec ce projet.</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Fichiers CSV</translation>
    </message>
    <message>
        <source>HTML pages</source>
        <translation>Pages HTML</translation>
    </message>
    <message>
        <source>Edit decision lists</source>
        <translation>Listes de montage (EDL)</translation>
    </message>
    <message>
        <source>Export Changes</source>
        <translation>Exporter les modifications</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Changes exported to “%1”</source>
        <translation>Modifications exportées dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The changes could not be exported to “%1”.</source>
        <translation>Impossible d’exporter les modifications dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>, %1 added</source>
        <translation>, %1 ajoutés</translation>
    </message>
</context>
<context>
    <name>vantrell::ComparedProject</name>
    <message>
        <source>The file is of no type that can be opened.</source>
        <translation>Ce type de fichier ne peut pas être ouvert.</translation>
    </message>
</context>
<context>
    <name>vantrell::CutStrips</name>
    <message>
        <source>Old and new cut</source>
        <translation>Ancien et nouveau montage</translation>
    </message>
</context>
<context>
    <name>vantrell::DocumentWindow</name>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marqueurs</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>Show Each Under Its Own</source>
        <translation>Séparer par séquence et clip</translation>
    </message>
    <message>
        <source>The file is of no type that can be opened.</source>
        <translation>Ce type de fichier ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>“%1” cannot be shown as it was.</source>
        <translation>Impossible d’afficher «&#xa0;%1&#xa0;» tel qu’il était.</translation>
    </message>
    <message>
        <source>The file is open in another window. Close that window first.</source>
        <translation>Le fichier est ouvert dans une autre fenêtre. Fermez d’abord cette fenêtre.</translation>
    </message>
    <message>
        <source>None of the unsaved changes could be restored, as the project was changed since. They are offered again the next time.</source>
        <translation>Aucune des modifications non enregistrées n’a pu être restaurée, car le projet a été modifié entre-temps. Elles seront proposées à nouveau la prochaine fois.</translation>
    </message>
    <message>
        <source>1 unsaved change was restored.</source>
        <translation>1 modification non enregistrée a été restaurée.</translation>
    </message>
    <message>
        <source>%1 unsaved changes were restored.</source>
        <translation>%1 modifications non enregistrées ont été restaurées.</translation>
    </message>
    <message>
        <source>%1 of %2 unsaved changes were restored; the project was changed where the others belong.</source>
        <translation>Modifications non enregistrées restaurées&#xa0;: %1 sur %2&#xa0;; le projet a été modifié à l’endroit des autres.</translation>
    </message>
    <message>
        <source>Restored in part: %1.</source>
        <translation>Restaurées en partie&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The file is as it was until you save.</source>
        <translation>Le fichier reste inchangé tant que vous n’enregistrez pas.</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Project files are read by way of Final Cut Pro 7, which gave no project. An XML export of it opens without.</source>
        <translation>Les fichiers de projet sont lus par l’intermédiaire de Final Cut Pro 7, qui n’a fourni aucun projet. Un export XML du projet s’ouvre sans lui.</translation>
    </message>
    <message>
        <source>%1 in Final Cut Pro</source>
        <translation>%1 dans Final Cut Pro</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>file and folder</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>project and program</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Listing markers…</source>
        <translation>Liste des marqueurs en cours…</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Comparaison…</translation>
    </message>
    <message>
        <source>Waiting for the volume of “%1”…</source>
        <translation>En attente du volume de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The project stays open as it is. You can save it to another place.</source>
        <translation>Le projet reste ouvert tel quel. Vous pouvez l’enregistrer à un autre emplacement.</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rétabli&#xa0;: %1</translation>
    </message>
    <message>
        <source>File ▸ Import Notes… adds its markers to an open project.</source>
        <translation>Fichier ▸ Importer des notes… ajoute ses marqueurs à un projet ouvert.</translation>
    </message>
</context>
<context>
    <name>vantrell::EffectsPane</name>
    <message>
        <source>Show &amp;defaults</source>
        <translation>Effets par défau&amp;t</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>All Effects</source>
        <translation>Tous les effets</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Video Filters</source>
        <translation>Filtres vidéo</translation>
    </message>
    <message>
        <source>Audio Filters</source>
        <translation>Filtres audio</translation>
    </message>
    <message>
        <source>Generators</source>
        <translation>Générateurs</translation>
    </message>
    <message>
        <source>Transitions</source>
        <translation>Transitions</translation>
    </message>
    <message>
        <source>Type of effects</source>
        <translation>Type d’effets</translation>
    </message>
    <message>
        <source>Show effects of one type only</source>
        <translation>N’afficher que les effets d’un type</translation>
    </message>
    <message>
        <source>Also show the effects that every clip has, such as Basic Motion and Opacity</source>
        <translation>Afficher aussi les effets que possède chaque clip, tels que Basic Motion et Opacity</translation>
    </message>
    <message>
        <source>Remove the selected effects from the project</source>
        <translation>Supprimer du projet les effets sélectionnés</translation>
    </message>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <source>Show only effects whose name contains this text</source>
        <translation>N’afficher que les effets dont le nom contient ce texte</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>An effect has nothing to open here. Its box switches it on and off, Remove… takes it out, and the editing application changes its settings</source>
        <translation>Un effet n’a rien à ouvrir ici. Sa case l’active ou le désactive, Supprimer… le retire, et ses réglages se modifient dans le logiciel de montage</translation>
    </message>
    <message>
        <source>1 effect left the list, but is still in the project</source>
        <translation>1 effet a quitté la liste, mais reste dans le projet</translation>
    </message>
    <message>
        <source>%1 effects left the list, but are still in the project</source>
        <translation>%1 effets ont quitté la liste, mais restent dans le projet</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>%1 effect</source>
        <translation>%1 effet</translation>
    </message>
    <message>
        <source>%1 effects</source>
        <translation>%1 effets</translation>
    </message>
    <message>
        <source>Looking for effects…</source>
        <translation>Recherche des effets…</translation>
    </message>
    <message>
        <source>Looking for effects: %1 so far…</source>
        <translation>Recherche des effets&#xa0;: %1 jusqu’ici…</translation>
    </message>
    <message>
        <source>No effect is of this type.</source>
        <translation>Aucun effet n’est de ce type.</translation>
    </message>
    <message>
        <source>No effect of this type has a name with “%1”.</source>
        <translation>Aucun effet de ce type n’a un nom contenant «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>This project has no effects.</source>
        <translation>Ce projet n’a pas d’effets.</translation>
    </message>
    <message>
        <source>Show Hidde&amp;n Effects</source>
        <translation>Afficher les effets mas&amp;qués</translation>
    </message>
    <message>
        <source>The Delete key takes rows off this list only; View ▸ Show Hidden Effects lists them again. Edit ▸ Remove… removes the effects from the project.</source>
        <translation>La touche Suppr ne retire des lignes que de cette liste&#xa0;; Affichage ▸ Afficher les effets masqués les liste à nouveau. Édition ▸ Supprimer… supprime les effets du projet.</translation>
    </message>
    <message>
        <source>List the effects again that the Delete key has taken off the list</source>
        <translation>Lister à nouveau les effets que la touche Suppr a retirés de la liste</translation>
    </message>
    <message>
        <source>All effects were taken off this list. They are still in the project.</source>
        <translation>Tous les effets ont été retirés de cette liste. Ils restent dans le projet.</translation>
    </message>
    <message>
        <source>Nothing was removed: no row is selected</source>
        <translation>Rien n’a été supprimé&#xa0;: aucune ligne n’est sélectionnée</translation>
    </message>
    <message>
        <source>No effect left the list: no row is selected</source>
        <translation>Aucun effet n’a quitté la liste&#xa0;: aucune ligne n’est sélectionnée</translation>
    </message>
    <message>
        <source>No effect has a name with “%1”.</source>
        <translation>Aucun effet n’a un nom contenant «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>All effects of this project are default ones.</source>
        <translation>Tous les effets de ce projet sont des effets par défaut.</translation>
    </message>
    <message>
        <source>“Show defaults” lists default effects as well.</source>
        <translation>«&#xa0;Effets par défaut&#xa0;» liste aussi les effets par défaut.</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportListSheet</name>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>A table of the files, also the missing ones, for spreadsheet programs.</source>
        <translation>Un tableau des fichiers, y compris les fichiers manquants, pour les tableurs.</translation>
    </message>
    <message>
        <source>Lists of paths</source>
        <translation>Listes de chemins</translation>
    </message>
    <message>
        <source>One path a line, for rsync --files-from with the source “/”. Missing files are left out.</source>
        <translation>Un chemin par ligne, pour rsync --files-from avec la source «&#xa0;/&#xa0;». Les fichiers manquants sont omis.</translation>
    </message>
    <message>
        <source>Paths that a NUL ends, for rsync --from0 --files-from with the source “/”. Missing files are left out.</source>
        <translation>Des chemins terminés par NUL, pour rsync --from0 --files-from avec la source «&#xa0;/&#xa0;». Les fichiers manquants sont omis.</translation>
    </message>
    <message>
        <source>Media hash lists</source>
        <translation>Listes MHL</translation>
    </message>
    <message>
        <source>Every file is read, which takes as long as copying it. A list that was cancelled goes on where it stopped when it is exported to the same file again. Files in the list’s folder are listed relative to it: keep it beside the media. Missing files are left out.</source>
        <translation>Chaque fichier est lu, ce qui prend autant de temps que de le copier. Une liste annulée reprend où elle s’était arrêtée quand elle est exportée à nouveau dans le même fichier. Les fichiers situés dans le dossier de la liste y figurent par rapport à celui-ci&#xa0;: conservez-la à côté des médias. Les fichiers manquants sont omis.</translation>
    </message>
    <message>
        <source>Export List</source>
        <translation>Exporter une liste</translation>
    </message>
    <message>
        <source>Table (CSV)</source>
        <translation>Tableau (CSV)</translation>
    </message>
    <message>
        <source>Paths for rsync</source>
        <translation>Chemins pour rsync</translation>
    </message>
    <message>
        <source>Paths for rsync, separated by NUL</source>
        <translation>Chemins pour rsync, séparés par NUL</translation>
    </message>
    <message>
        <source>Checksums (MHL, MD5 and xxHash64)</source>
        <translation>Sommes de contrôle (MHL, MD5 et xxHash64)</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Files on show</source>
        <translation>Fichiers affichés</translation>
    </message>
    <message>
        <source>Files used by “%1”</source>
        <translation>Fichiers utilisés par «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>&amp;Format</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>F&amp;iles</source>
        <translation>F&amp;ichiers</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportNotesSheet</name>
    <message>
        <source>Export Notes</source>
        <translation>Exporter des notes</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Markers:</source>
        <translation>&amp;Marqueurs&#xa0;:</translation>
    </message>
    <message>
        <source>Co&amp;lor:</source>
        <translation>Cou&amp;leur&#xa0;:</translation>
    </message>
    <message>
        <source>Se&amp;quence:</source>
        <translation>Sé&amp;quence&#xa0;:</translation>
    </message>
    <message>
        <source>Fla&amp;g:</source>
        <translation>Indi&amp;cateur&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Containing:</source>
        <translation>Contena&amp;nt&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>CSV for spreadsheets</source>
        <translation>CSV pour tableurs</translation>
    </message>
    <message>
        <source>Text, separated by tabs</source>
        <translation>Texte séparé par des tabulations</translation>
    </message>
    <message>
        <source>Markdown table</source>
        <translation>Tableau Markdown</translation>
    </message>
    <message>
        <source>Avid markers, six fields</source>
        <translation>Marqueurs Avid, six champs</translation>
    </message>
    <message>
        <source>Avid markers with names, eight fields</source>
        <translation>Marqueurs Avid avec noms, huit champs</translation>
    </message>
    <message>
        <source>Resolve markers (EDL)</source>
        <translation>Marqueurs Resolve (EDL)</translation>
    </message>
    <message>
        <source>EDL with locators</source>
        <translation>EDL avec locators</translation>
    </message>
    <message>
        <source>Chapters for a video description</source>
        <translation>Chapitres pour une description de vidéo</translation>
    </message>
    <message>
        <source>WebVTT</source>
        <translation>WebVTT</translation>
    </message>
    <message>
        <source>JSON for scripts</source>
        <translation>JSON pour scripts</translation>
    </message>
    <message>
        <source>All markers (%1)</source>
        <translation>Tous les marqueurs (%1)</translation>
    </message>
    <message>
        <source>Selected markers (%1)</source>
        <translation>Marqueurs sélectionnés (%1)</translation>
    </message>
    <message>
        <source>Shown markers (%1)</source>
        <translation>Marqueurs affichés (%1)</translation>
    </message>
    <message>
        <source>All colors</source>
        <translation>Toutes les couleurs</translation>
    </message>
    <message>
        <source>All sequences</source>
        <translation>Toutes les séquences</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Partition</translation>
    </message>
    <message>
        <source>Col&amp;umns, in the order of the list:</source>
        <translation>Col&amp;onnes, dans l’ordre de la liste&#xa0;:</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Drag a column to another place</source>
        <translation>Faire glisser une colonne à une autre place</translation>
    </message>
    <message>
        <source>1 marker will be exported.</source>
        <translation>1 marqueur sera exporté.</translation>
    </message>
    <message>
        <source>%1 markers will be exported.</source>
        <translation>%1 marqueurs seront exportés.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>custom field</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportReportSheet</name>
    <message>
        <source>Export Report</source>
        <translation>Exporter un rapport</translation>
    </message>
    <message>
        <source>HTML page</source>
        <translation>Page HTML</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>CSV for spreadsheets</source>
        <translation>CSV pour tableurs</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exporter…</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vantrell::GoToTimecodeSheet</name>
    <message>
        <source>Go to Timecode</source>
        <translation>Aller au timecode</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Aller</translation>
    </message>
    <message>
        <source>Digits fill the timecode from the right; a full stop stands for two zeros</source>
        <translation>Les chiffres remplissent le timecode depuis la droite&#xa0;; un point remplace deux zéros</translation>
    </message>
    <message>
        <source>&amp;Timecode:</source>
        <translation>&amp;Timecode&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Sequence:</source>
        <translation>&amp;Séquence&#xa0;:</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Aucune séquence</translation>
    </message>
    <message>
        <source>Goes to the marker that is nearest to the timecode, among those that are shown.</source>
        <translation>Va au marqueur affiché le plus proche du timecode.</translation>
    </message>
    <message>
        <source>Timecode %1.</source>
        <translation>Timecode %1.</translation>
    </message>
    <message>
        <source>Nearest: a marker without a name at %1.</source>
        <translation>Le plus proche&#xa0;: un marqueur sans nom à %1.</translation>
    </message>
    <message>
        <source>Nearest: “%1” at %2.</source>
        <translation>Le plus proche&#xa0;: «&#xa0;%1&#xa0;» à %2.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
</context>
<context>
    <name>vantrell::KeyboardHelp</name>
    <message>
        <source>No key does that.</source>
        <translation>Aucune touche ne fait cela.</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Search keys and commands</source>
        <translation>Rechercher une touche ou une commande</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>vantrell::MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un projet &amp;récent</translation>
    </message>
    <message>
        <source>Open &amp;Final Cut Pro Project…</source>
        <translation>Ouvrir un projet Final &amp;Cut Pro…</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Re&amp;vert to Saved</source>
        <translation>Re&amp;venir à la version enregistrée</translation>
    </message>
    <message>
        <source>Co&amp;mpare with…</source>
        <translation>Co&amp;mparer avec…</translation>
    </message>
    <message>
        <source>Export C&amp;hanged Sequences…</source>
        <translation>Exporter les séquences mo&amp;difiées…</translation>
    </message>
    <message>
        <source>Expor&amp;t Report…</source>
        <translation>Exporter un r&amp;apport…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Im&amp;primer…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>&amp;Final Cut Pro Markers…</source>
        <translation>Marqueurs &amp;Final Cut Pro…</translation>
    </message>
    <message>
        <source>&amp;Avid Locators…</source>
        <translation>Locators &amp;Avid…</translation>
    </message>
    <message>
        <source>Final Cut Pro &amp;X Markers…</source>
        <translation>Marqueurs Final Cut Pro &amp;X…</translation>
    </message>
    <message>
        <source>Import &amp;Notes…</source>
        <translation>Importer des &amp;notes…</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>E&amp;xporter</translation>
    </message>
    <message>
        <source>E&amp;xport Notes…</source>
        <translation>Exporter des no&amp;tes…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Pa&amp;ste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>&amp;Go to Timecode…</source>
        <translation>&amp;Aller au timecode…</translation>
    </message>
    <message>
        <source>Ne&amp;xt of Same Color</source>
        <translation>&amp;Suivant de même couleur</translation>
    </message>
    <message>
        <source>Pre&amp;vious of Same Color</source>
        <translation>&amp;Précédent de même couleur</translation>
    </message>
    <message>
        <source>Add &amp;Marker…</source>
        <translation>A&amp;jouter un marqueur…</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Move &amp;In, Keep Duration</source>
        <translation>Déplacer l’&amp;entrée, garder la durée</translation>
    </message>
    <message>
        <source>R&amp;emove…</source>
        <translation>S&amp;upprimer…</translation>
    </message>
    <message>
        <source>Mar&amp;ker Fields…</source>
        <translation>Champs de mar&amp;queur…</translation>
    </message>
    <message>
        <source>Create Marker &amp;Preset…</source>
        <translation>Créer un prérég&amp;lage de marqueur…</translation>
    </message>
    <message>
        <source>Manage Marker Prese&amp;ts…</source>
        <translation>&amp;Gérer les préréglages de marqueur…</translation>
    </message>
    <message>
        <source>Prefere&amp;nces…</source>
        <translation>Pré&amp;férences…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Media</source>
        <translation>&amp;Médias</translation>
    </message>
    <message>
        <source>&amp;Effects</source>
        <translation>&amp;Effets</translation>
    </message>
    <message>
        <source>Mar&amp;kers</source>
        <translation>Mar&amp;queurs</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>Marker &amp;Overview</source>
        <translation>&amp;Vue d’ensemble des marqueurs</translation>
    </message>
    <message>
        <source>&amp;Relink…</source>
        <translation>&amp;Relier…</translation>
    </message>
    <message>
        <source>&amp;Path Mappings…</source>
        <translation>&amp;Correspondances de chemins…</translation>
    </message>
    <message>
        <source>&amp;Export List…</source>
        <translation>&amp;Exporter une liste…</translation>
    </message>
    <message>
        <source>&amp;Verify List…</source>
        <translation>&amp;Vérifier une liste…</translation>
    </message>
    <message>
        <source>Show &amp;Uses</source>
        <translation>Afficher les &amp;utilisations</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>Fe&amp;nêtre</translation>
    </message>
    <message>
        <source>&amp;Minimize</source>
        <translation>&amp;Réduire</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>No Project Is Open</source>
        <translation>Aucun projet ouvert</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>User &amp;Manual</source>
        <translation>&amp;Manuel de l’utilisateur</translation>
    </message>
    <message>
        <source>&amp;Keyboard Shortcuts</source>
        <translation>&amp;Raccourcis clavier</translation>
    </message>
    <message>
        <source>&amp;Halvex Home Page</source>
        <translation>Page d’accueil de &amp;Halvex</translation>
    </message>
    <message>
        <source>&amp;Orvandel Home Page</source>
        <translation>Page d’accueil d’&amp;Orvandel</translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation>&amp;Assistance</translation>
    </message>
    <message>
        <source>Report a &amp;Bug</source>
        <translation>Signaler un &amp;bogue</translation>
    </message>
    <message>
        <source>Suggest a &amp;Feature</source>
        <translation>&amp;Suggérer une fonctionnalité</translation>
    </message>
    <message>
        <source>&amp;Troubleshooting</source>
        <translation>&amp;Dépannage</translation>
    </message>
    <message>
        <source>View &amp;Log</source>
        <translation>Afficher le &amp;journal</translation>
    </message>
    <message>
        <source>View &amp;Task Log</source>
        <translation>Afficher le journal des &amp;tâches</translation>
    </message>
    <message>
        <source>&amp;Gather Logs…</source>
        <translation>&amp;Rassembler les journaux…</translation>
    </message>
    <message>
        <source>Log &amp;Quality Control</source>
        <translation>Journaliser le contrôle &amp;qualité</translation>
    </message>
    <message>
        <source>About &amp;Vantrell</source>
        <translation>À propos de &amp;Vantrell</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <translation>Vider le menu</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>le retour à la version enregistrée</translation>
    </message>
    <message>
        <source>No sequence has been changed since the project was opened.</source>
        <translation>Aucune séquence n’a été modifiée depuis l’ouverture du projet.</translation>
    </message>
    <message>
        <source>Choose from the projects that are open in Final Cut Pro</source>
        <translation>Choisir parmi les projets ouverts dans Final Cut Pro</translation>
    </message>
    <message>
        <source>Final Cut Pro is not running. Start it and open a project in it first.</source>
        <translation>Final Cut Pro n’est pas lancé. Lancez-le d’abord et ouvrez-y un projet.</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>Show &amp;Hidden Effects</source>
        <translation>&amp;Afficher les effets masqués</translation>
    </message>
    <message>
        <source>&amp;Offset…</source>
        <translation>Décaler les &amp;marqueurs…</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>file and folder</comment>
        <translation>%1 — %2</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerAddSheet</name>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Ajouter un marqueur</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Sequence:</source>
        <translation>&amp;Séquence&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Timecode:</source>
        <translation>&amp;Timecode&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Duration:</source>
        <translation>&amp;Durée&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Co&amp;mment:</source>
        <translation>Co&amp;mmentaire&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;olor:</source>
        <translation>C&amp;ouleur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerFieldsSheet</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Marker Fields</source>
        <translation>Champs de marqueur</translation>
    </message>
    <message>
        <source>Marker fields</source>
        <translation>Champs de marqueur</translation>
    </message>
    <message>
        <source>Each field is a column of the marker table. What you type there is kept in the marker’s comment, under the identifier.</source>
        <translation>Chaque champ est une colonne du tableau des marqueurs. Ce que vous y saisissez est conservé dans le commentaire du marqueur, sous l’identifiant.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Terminé</translation>
    </message>
    <message>
        <source>⚠ %1 It was left as it was.</source>
        <translation>⚠ %1 La valeur est restée inchangée.</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerOffsetSheet</name>
    <message>
        <source>Offset Markers</source>
        <translation>Décaler les marqueurs</translation>
    </message>
    <message>
        <source>Move the in points of the selected markers &amp;by:</source>
        <translation>Décaler les points d’entrée des marqueurs sélectionnés &amp;de&#xa0;:</translation>
    </message>
    <message>
        <source>Frames, such as 12 or -12, or a timecode, such as 00:00:01:00 or -1:00.</source>
        <translation>Un nombre d’images, tel que 12 ou -12, ou un timecode, tel que 00:00:01:00 ou -1:00.</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerOverviewPanel</name>
    <message>
        <source>Sequence of the overview</source>
        <translation>Séquence de la vue d’ensemble</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Aucune séquence</translation>
    </message>
    <message>
        <source>%1
Choose the sequence of the overview, or let it follow the selected row</source>
        <translation>%1
Choisir la séquence de la vue d’ensemble, ou la laisser suivre la ligne sélectionnée</translation>
    </message>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>Sequence of the Selected Row</source>
        <translation>Séquence de la ligne sélectionnée</translation>
    </message>
    <message>
        <source>“%1” is hidden by the filter</source>
        <translation>«&#xa0;%1&#xa0;» est masqué par le filtre</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerPresetSheet</name>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Label of %1</source>
        <translation>Libellé de %1</translation>
    </message>
    <message>
        <source>Create Marker Preset</source>
        <translation>Créer un préréglage de marqueur</translation>
    </message>
    <message>
        <source>Preset &amp;name:</source>
        <translation>&amp;Nom du préréglage&#xa0;:</translation>
    </message>
    <message>
        <source>Labels of the colors</source>
        <translation>Libellés des couleurs</translation>
    </message>
    <message>
        <source>The labels stand for the colors in the filter and in the table.</source>
        <translation>Les libellés remplacent les couleurs dans le filtre et dans le tableau.</translation>
    </message>
    <message>
        <source>Edit Marker Preset</source>
        <translation>Modifier le préréglage de marqueur</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerPresetsSheet</name>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>D&amp;elete…</source>
        <translation>S&amp;upprimer…</translation>
    </message>
    <message>
        <source>Marker Presets</source>
        <translation>Préréglages de marqueur</translation>
    </message>
    <message>
        <source>Marker presets</source>
        <translation>Préréglages de marqueur</translation>
    </message>
    <message>
        <source>&amp;Done</source>
        <translation>&amp;Terminé</translation>
    </message>
    <message>
        <source>⚠ %1</source>
        <translation>⚠ %1</translation>
    </message>
    <message>
        <source>There are no presets yet.
Edit ▸ Create Marker Preset… makes one, as does “%1” in the pop-up “Preset” above the markers.</source>
        <translation>Il n’y a pas encore de préréglages.
Édition ▸ Créer un préréglage de marqueur… en crée un, tout comme «&#xa0;%1&#xa0;» dans la liste «&#xa0;Préréglage&#xa0;» au-dessus des marqueurs.</translation>
    </message>
    <message>
        <source>Edit &amp;Labels…</source>
        <translation>Modifier les &amp;libellés…</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerStrip</name>
    <message>
        <source>Marker overview</source>
        <translation>Vue d’ensemble des marqueurs</translation>
    </message>
    <message>
        <source>Left and Right select the previous and the next marker. Plus and minus zoom, 0 shows all.</source>
        <translation>Gauche et Droite sélectionnent le marqueur précédent et le marqueur suivant. Plus et moins zooment, 0 affiche tout.</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(sans nom)</translation>
    </message>
    <message>
        <source>%1, duration %2</source>
        <translation>%1, durée %2</translation>
    </message>
    <message>
        <source>on the clip “%1”</source>
        <translation>sur le clip «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>outside the sequence</source>
        <translation>hors de la séquence</translation>
    </message>
    <message>
        <source>hidden by the filter</source>
        <translation>masqué par le filtre</translation>
    </message>
    <message>
        <source>and %1 more here</source>
        <translation>et %1 de plus ici</translation>
    </message>
    <message>
        <source>%1
%2 – %3</source>
        <translation>%1
%2 – %3</translation>
    </message>
    <message>
        <source>No sequence</source>
        <translation>Aucune séquence</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkerTableModel</name>
    <message>
        <source>%1; the duration is kept</source>
        <translation>%1&#xa0;; la durée est conservée</translation>
    </message>
    <message>
        <source>On the clip “%1”, which is in no sequence</source>
        <translation>Sur le clip « %1 », qui n’est dans aucune séquence</translation>
    </message>
</context>
<context>
    <name>vantrell::MarkersPane</name>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>A&amp;dd…</source>
        <translation>Ajou&amp;ter…</translation>
    </message>
    <message>
        <source>&amp;Remove…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Offset…</source>
        <translation>Déca&amp;ler…</translation>
    </message>
    <message>
        <source>Fie&amp;lds…</source>
        <translation>C&amp;hamps…</translation>
    </message>
    <message>
        <source>Own se&amp;quence and clip</source>
        <translation>Sé&amp;quence et clip propres</translation>
    </message>
    <message>
        <source>All Colors</source>
        <translation>Toute couleur</translation>
    </message>
    <message>
        <source>Color of markers</source>
        <translation>Couleur des marqueurs</translation>
    </message>
    <message>
        <source>Show markers of one color only</source>
        <translation>N’afficher que les marqueurs d’une couleur</translation>
    </message>
    <message>
        <source>Add a marker to the first sequence</source>
        <translation>Ajouter un marqueur à la première séquence</translation>
    </message>
    <message>
        <source>Add a marker to a sequence and at a timecode of your choice</source>
        <translation>Ajouter un marqueur à la séquence et au timecode de votre choix</translation>
    </message>
    <message>
        <source>Add at a sequence and timecode</source>
        <translation>Ajouter à une séquence et à un timecode</translation>
    </message>
    <message>
        <source>Remove the selected markers from the project</source>
        <translation>Supprimer du projet les marqueurs sélectionnés</translation>
    </message>
    <message>
        <source>Move the in points of the selected markers</source>
        <translation>Décaler les points d’entrée des marqueurs sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Preset:</source>
        <translation>Préré&amp;glage&#xa0;:</translation>
    </message>
    <message>
        <source>Marker preset</source>
        <translation>Préréglage de marqueur</translation>
    </message>
    <message>
        <source>Choose labels of your own for the colors</source>
        <translation>Choisir vos propres libellés pour les couleurs</translation>
    </message>
    <message>
        <source>Define columns of your own for the markers</source>
        <translation>Définir vos propres colonnes pour les marqueurs</translation>
    </message>
    <message>
        <source>List each marker under its own sequence and clip. Otherwise sequences at the same position in different bins share one name, and so do the clips of a track</source>
        <translation>Lister chaque marqueur sous sa propre séquence et son propre clip. Sinon, les séquences situées à la même position dans des chutiers différents partagent un nom, de même que les clips d’une piste</translation>
    </message>
    <message>
        <source>Markers</source>
        <translation>Marqueurs</translation>
    </message>
    <message>
        <source>Search the markers</source>
        <translation>Rechercher dans les marqueurs</translation>
    </message>
    <message>
        <source>Show only markers with this text in their name, comment, custom fields, sequence or clip</source>
        <translation>N’afficher que les marqueurs dont le nom, le commentaire, les champs personnalisés, la séquence ou le clip contiennent ce texte</translation>
    </message>
    <message>
        <source>Sequence of markers</source>
        <translation>Séquence des marqueurs</translation>
    </message>
    <message>
        <source>Show markers of one sequence only</source>
        <translation>N’afficher que les marqueurs d’une séquence</translation>
    </message>
    <message>
        <source>All Flags</source>
        <translation>Tout indicateur</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Scoring</source>
        <translation>Partition</translation>
    </message>
    <message>
        <source>Flag of markers</source>
        <translation>Indicateur des marqueurs</translation>
    </message>
    <message>
        <source>Show only markers with this flag</source>
        <translation>N’afficher que les marqueurs portant cet indicateur</translation>
    </message>
    <message>
        <source>All Sequences</source>
        <translation>Toute séquence</translation>
    </message>
    <message>
        <source>%1 marker</source>
        <translation>%1 marqueur</translation>
    </message>
    <message>
        <source>%1 markers</source>
        <translation>%1 marqueurs</translation>
    </message>
    <message>
        <source>There is no marker to go to</source>
        <translation>Il n’y a aucun marqueur où aller</translation>
    </message>
    <message>
        <source>Select a marker first</source>
        <translation>Sélectionnez d’abord un marqueur</translation>
    </message>
    <message>
        <source>No further marker of this color below</source>
        <translation>Plus aucun marqueur de cette couleur en dessous</translation>
    </message>
    <message>
        <source>No further marker of this color above</source>
        <translation>Plus aucun marqueur de cette couleur au-dessus</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Dupliquer</translation>
    </message>
    <message>
        <source>Move &amp;In, Keep Duration</source>
        <translation>Déplacer l’&amp;entrée, garder la durée</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Marker &amp;Fields…</source>
        <translation>&amp;Champs de marqueur…</translation>
    </message>
    <message>
        <source>Create Marker &amp;Preset…</source>
        <translation>Créer un prérég&amp;lage de marqueur…</translation>
    </message>
    <message>
        <source>&amp;Manage Marker Presets…</source>
        <translation>&amp;Gérer les préréglages de marqueur…</translation>
    </message>
    <message>
        <source>1 marker duplicated</source>
        <translation>1 marqueur dupliqué</translation>
    </message>
    <message>
        <source>%1 markers duplicated</source>
        <translation>%1 marqueurs dupliqués</translation>
    </message>
    <message>
        <source>1 marker</source>
        <translation>1 marqueur</translation>
    </message>
    <message>
        <source>%1 (%2 selected)</source>
        <translation>%1 (sélection&#xa0;: %2)</translation>
    </message>
    <message>
        <source>%1. %2.</source>
        <translation>%1. %2.</translation>
    </message>
    <message>
        <source>Looking for markers…</source>
        <translation>Recherche des marqueurs…</translation>
    </message>
    <message>
        <source>Looking for markers: %1 so far…</source>
        <translation>Recherche des marqueurs&#xa0;: %1 jusqu’ici…</translation>
    </message>
    <message>
        <source>This project has no markers yet.</source>
        <translation>Ce projet n’a pas encore de marqueur.</translation>
    </message>
    <message>
        <source>No marker matches the search.</source>
        <translation>Aucun marqueur ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>No marker has this color.</source>
        <translation>Aucun marqueur n’a cette couleur.</translation>
    </message>
    <message>
        <source>The column In is hidden. View ▸ Columns shows it again</source>
        <translation>La colonne Entrée est masquée. Affichage ▸ Colonnes la réaffiche</translation>
    </message>
    <message>
        <source>Nothing was duplicated: no row is selected</source>
        <translation>Rien n’a été dupliqué&#xa0;: aucune ligne n’est sélectionnée</translation>
    </message>
    <message>
        <source>Nothing was removed: no row is selected</source>
        <translation>Rien n’a été supprimé&#xa0;: aucune ligne n’est sélectionnée</translation>
    </message>
    <message>
        <source>The space bar sets and clears the box</source>
        <translation>La barre d’espace coche et décoche la case</translation>
    </message>
    <message>
        <source>This key removes no markers. Edit ▸ Remove… (Ctrl+Delete) does</source>
        <translation>Cette touche ne supprime pas de marqueurs&#xa0;; Édition ▸ Supprimer… (Ctrl+Suppr) le fait</translation>
    </message>
    <message>
        <source>There is no clip to choose: the marker is in no sequence</source>
        <translation>Il n’y a pas de clip à choisir&#xa0;: le marqueur n’est dans aucune séquence</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaFooter</name>
    <message>
        <source>By kind:</source>
        <translation>Par type&#xa0;:</translation>
    </message>
    <message>
        <source>By drive:</source>
        <translation>Par disque&#xa0;:</translation>
    </message>
    <message>
        <source>Shares of the media on show by kind</source>
        <translation>Parts des médias affichés par type</translation>
    </message>
    <message>
        <source>Shares of the media on show by drive</source>
        <translation>Parts des médias affichés par disque</translation>
    </message>
    <message>
        <source>Chart of the media on show and the free space of the start-up volume</source>
        <translation>Graphique des médias affichés et de l’espace libre du volume de démarrage</translation>
    </message>
    <message>
        <source>Media on show</source>
        <translation>Médias affichés</translation>
    </message>
    <message>
        <source>Free on System Drive</source>
        <translation>Libre sur le disque système</translation>
    </message>
    <message>
        <source>Media on show: %1 (green)
Free on the start-up volume: %2 (blue)</source>
        <translation>Médias affichés&#xa0;: %1 (vert)
Libre sur le volume de démarrage&#xa0;: %2 (bleu)</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaPane</name>
    <message>
        <source>&amp;Reveal</source>
        <translation>&amp;Révéler</translation>
    </message>
    <message>
        <source>Re&amp;link…</source>
        <translation>Re&amp;lier…</translation>
    </message>
    <message>
        <source>E&amp;xport List…</source>
        <translation>E&amp;xporter une liste…</translation>
    </message>
    <message>
        <source>Media files</source>
        <translation>Fichiers de médias</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>No file is selected. Click its row first</source>
        <translation>Aucun fichier n’est sélectionné. Cliquez d’abord sur sa ligne</translation>
    </message>
    <message>
        <source>Reveal in File Browser</source>
        <translation>Révéler dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Relink…</source>
        <translation>Relier…</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Movie Clips</source>
        <translation>Clips vidéo</translation>
    </message>
    <message>
        <source>Audio Clips</source>
        <translation>Clips audio</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Kind of files</source>
        <translation>Type de fichiers</translation>
    </message>
    <message>
        <source>Show files of one kind only</source>
        <translation>N’afficher que les fichiers d’un type</translation>
    </message>
    <message>
        <source>All Drives</source>
        <translation>Tous les disques</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Show the files of one drive only</source>
        <translation>N’afficher que les fichiers d’un disque</translation>
    </message>
    <message>
        <source>Show the selected file in the file browser</source>
        <translation>Afficher le fichier sélectionné dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Find the missing files in other folders</source>
        <translation>Rechercher les fichiers manquants dans d’autres dossiers</translation>
    </message>
    <message>
        <source>Write a list of the files to be sent, with checksums if wanted</source>
        <translation>Écrire une liste des fichiers à envoyer, au besoin avec des sommes de contrôle</translation>
    </message>
    <message>
        <source>Search the media files</source>
        <translation>Rechercher dans les fichiers de médias</translation>
    </message>
    <message>
        <source>Show only files with this text in their name or folder</source>
        <translation>N’afficher que les fichiers dont le nom ou le dossier contient ce texte</translation>
    </message>
    <message>
        <source>Any State</source>
        <translation>Tous les états</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquant</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Inutilisé</translation>
    </message>
    <message>
        <source>Unknown Kind</source>
        <translation>Type inconnu</translation>
    </message>
    <message>
        <source>State of files</source>
        <translation>État des fichiers</translation>
    </message>
    <message>
        <source>Show only files that are missing, that no sequence uses, or of an unknown kind</source>
        <translation>N’afficher que les fichiers manquants, qu’aucune séquence n’utilise ou de type inconnu</translation>
    </message>
    <message>
        <source>%1 file</source>
        <translation>%1 fichier</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>System Drive</source>
        <translation>Disque système</translation>
    </message>
    <message>
        <source>Looking for media…</source>
        <translation>Recherche des médias…</translation>
    </message>
    <message>
        <source>Looking for media: %1 so far…</source>
        <translation>Recherche des médias&#xa0;: %1 jusqu’ici…</translation>
    </message>
    <message>
        <source>This project uses no media files.</source>
        <translation>Ce projet n’utilise aucun fichier de médias.</translation>
    </message>
    <message>
        <source>Looking for what the sequences use…</source>
        <translation>Recherche de ce qu’utilisent les séquences…</translation>
    </message>
    <message>
        <source>No media file matches the search.</source>
        <translation>Aucun fichier de médias ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>No media file is of this kind and on this drive.</source>
        <translation>Aucun fichier de médias n’est de ce type et sur ce disque.</translation>
    </message>
    <message>
        <source>Unknown Drive</source>
        <translation>Disque inconnu</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>sizes</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>The size of the files on show</source>
        <translation>La taille des fichiers affichés</translation>
    </message>
    <message>
        <source>Files cannot be removed here: the list shows what the project uses</source>
        <translation>Aucun fichier ne peut être supprimé ici&#xa0;: la liste montre ce que le projet utilise</translation>
    </message>
</context>
<context>
    <name>vantrell::MediaTableModel</name>
    <message>
        <source>missing</source>
        <translation>manquant</translation>
    </message>
    <message>
        <source>Missing: the project has no usable address of this file</source>
        <translation>Manque&#xa0;: le projet n’a pas d’adresse utilisable pour ce fichier</translation>
    </message>
    <message>
        <source>Missing: the drive “%1” is not connected</source>
        <translation>Manque&#xa0;: le disque «&#xa0;%1&#xa0;» n’est pas connecté</translation>
    </message>
    <message>
        <source>Missing: there is no such file. Relink… finds it in other folders</source>
        <translation>Manque&#xa0;: ce fichier n’existe pas. Relier… le retrouve dans d’autres dossiers</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>%1
looked for at %2
%3</source>
        <translation>%1
cherché dans %2
%3</translation>
    </message>
</context>
<context>
    <name>vantrell::MessageLine</name>
    <message>
        <source>Copy Path</source>
        <translation>Copier le chemin</translation>
    </message>
</context>
<context>
    <name>vantrell::NoteColorStrip</name>
    <message>
        <source>Colors of the list</source>
        <translation>Couleurs de la liste</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>No color</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>Color for “%1”</source>
        <translation>Couleur pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
</context>
<context>
    <name>vantrell::NoteColumnStrip</name>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Piste</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Custom field</source>
        <translation>Champ personnalisé</translation>
    </message>
    <message>
        <source>Ignored</source>
        <translation>Ignorée</translation>
    </message>
    <message>
        <source>Columns of the list</source>
        <translation>Colonnes de la liste</translation>
    </message>
    <message>
        <source>Role of the column “%1”</source>
        <translation>Rôle de la colonne «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreview</name>
    <message>
        <source>Avid markers</source>
        <translation>Marqueurs Avid</translation>
    </message>
    <message>
        <source>Avid markers (XML)</source>
        <translation>Marqueurs Avid (XML)</translation>
    </message>
    <message>
        <source>Premiere Pro markers</source>
        <translation>Marqueurs Premiere Pro</translation>
    </message>
    <message>
        <source>Audition markers</source>
        <translation>Marqueurs Audition</translation>
    </message>
    <message>
        <source>Resolve markers (EDL)</source>
        <translation>Marqueurs Resolve (EDL)</translation>
    </message>
    <message>
        <source>EDL with locators</source>
        <translation>EDL avec locators</translation>
    </message>
    <message>
        <source>Pro Tools session text</source>
        <translation>Texte de session Pro Tools</translation>
    </message>
    <message>
        <source>review notes</source>
        <translation>notes de révision</translation>
    </message>
    <message>
        <source>chapters</source>
        <translation>chapitres</translation>
    </message>
    <message>
        <source>Final Cut Pro X XML</source>
        <translation>XML Final Cut Pro X</translation>
    </message>
    <message>
        <source>Final Cut Pro marker list</source>
        <translation>Liste de marqueurs Final Cut Pro</translation>
    </message>
    <message>
        <source>table</source>
        <translation>tableau</translation>
    </message>
    <message>
        <source>separated by tabs</source>
        <translation>champs séparés par des tabulations</translation>
    </message>
    <message>
        <source>separated by commas</source>
        <translation>champs séparés par des virgules</translation>
    </message>
    <message>
        <source>separated by semicolons</source>
        <translation>champs séparés par des points-virgules</translation>
    </message>
    <message>
        <source>%1 drop frame</source>
        <translation>%1 drop frame</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 ligne</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 lignes</translation>
    </message>
    <message>
        <source>Recognized as %1</source>
        <translation>Format reconnu&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” is no timecode</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un timecode</translation>
    </message>
    <message>
        <source>Outside the sequence: before its first frame</source>
        <translation>Hors de la séquence&#xa0;: avant sa première image</translation>
    </message>
    <message>
        <source>Outside the sequence: after its last frame</source>
        <translation>Hors de la séquence&#xa0;: après sa dernière image</translation>
    </message>
    <message>
        <source>Already there; will be added again</source>
        <translation>Déjà présente&#xa0;; sera ajoutée à nouveau</translation>
    </message>
    <message>
        <source>Already there</source>
        <translation>Déjà présente</translation>
    </message>
    <message>
        <source>Chapter</source>
        <translation>Chapitre</translation>
    </message>
    <message>
        <source>%1 of 1 note will be added</source>
        <translation>Notes à ajouter&#xa0;: %1 sur 1</translation>
    </message>
    <message>
        <source>%1 of %2 notes will be added</source>
        <translation>Notes à ajouter&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>1 is already there</source>
        <translation>1 déjà présente</translation>
    </message>
    <message>
        <source>%1 are already there</source>
        <translation>%1 déjà présentes</translation>
    </message>
    <message>
        <source>1 is outside the sequence</source>
        <translation>1 hors de la séquence</translation>
    </message>
    <message>
        <source>%1 are outside the sequence</source>
        <translation>%1 hors de la séquence</translation>
    </message>
    <message>
        <source>1 is unreadable</source>
        <translation>1 illisible</translation>
    </message>
    <message>
        <source>%1 are unreadable</source>
        <translation>%1 illisibles</translation>
    </message>
    <message>
        <source>1 is not checked</source>
        <translation>1 non cochée</translation>
    </message>
    <message>
        <source>%1 are not checked</source>
        <translation>%1 non cochées</translation>
    </message>
    <message>
        <source>Shown as %1</source>
        <translation>Affiché comme %1</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreviewModel</name>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Sequence</source>
        <translation>Séquence</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Ligne %1</translation>
    </message>
</context>
<context>
    <name>vantrell::NotePreviewSheet</name>
    <message>
        <source>A&amp;ll</source>
        <translation>&amp;Tout</translation>
    </message>
    <message>
        <source>Paste Notes</source>
        <translation>Coller des notes</translation>
    </message>
    <message>
        <source>Import Notes from “%1”</source>
        <translation>Importer des notes de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Timecode</source>
        <translation>Timecode</translation>
    </message>
    <message>
        <source>A timecode or its last digits; a point stands for two zeros: 100 or 1. is one second</source>
        <translation>Un timecode ou ses derniers chiffres&#xa0;; un point remplace deux zéros&#xa0;: 100 ou 1. vaut une seconde</translation>
    </message>
    <message>
        <source>Add &amp;to:</source>
        <translation>Ajo&amp;uter à&#xa0;:</translation>
    </message>
    <message>
        <source>Times &amp;are:</source>
        <translation>Les temps &amp;sont&#xa0;:</translation>
    </message>
    <message>
        <source>Frame &amp;rate:</source>
        <translation>&amp;Cadence&#xa0;:</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>Colors:</source>
        <translation>Couleurs&#xa0;:</translation>
    </message>
    <message>
        <source>Timecodes of the sequence</source>
        <translation>Des timecodes de la séquence</translation>
    </message>
    <message>
        <source>Elapsed from the start</source>
        <translation>Écoulés depuis le début</translation>
    </message>
    <message>
        <source>Timecodes, with this added</source>
        <translation>Des timecodes, à augmenter de</translation>
    </message>
    <message>
        <source>First note is at</source>
        <translation>Première note à</translation>
    </message>
    <message>
        <source>As in the list (%1)</source>
        <translation>Comme dans la liste (%1)</translation>
    </message>
    <message>
        <source>As in the sequence (%1)</source>
        <translation>Comme dans la séquence (%1)</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>Check all rows that are not there yet, or none</source>
        <translation>Cocher toutes les lignes qui ne sont pas encore présentes, ou aucune</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>A&amp;dd</source>
        <translation>A&amp;jouter</translation>
    </message>
</context>
<context>
    <name>vantrell::NoticeBar</name>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Dismiss notice</source>
        <translation>Fermer l’avis</translation>
    </message>
</context>
<context>
    <name>vantrell::PathMappingsSheet</name>
    <message>
        <source>Folder in Projects</source>
        <translation>Dossier dans les projets</translation>
    </message>
    <message>
        <source>Folder on This Machine</source>
        <translation>Dossier sur cet ordinateur</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Choose Folder…</source>
        <translation>&amp;Choisir un dossier…</translation>
    </message>
    <message>
        <source>Path Mappings</source>
        <translation>Correspondances de chemins</translation>
    </message>
    <message>
        <source>Path mappings</source>
        <translation>Correspondances de chemins</translation>
    </message>
    <message>
        <source>Files of the first folder are looked for in the second one, in all projects. Projects stay as they are. The first folder may also be a path with a drive letter, such as C:\Show, a share, such as //server/share, or a URL.</source>
        <translation>Les fichiers du premier dossier sont recherchés dans le second, pour tous les projets. Les projets restent inchangés. Le premier dossier peut aussi être un chemin avec une lettre de lecteur, tel que C:\Show, un partage, tel que //server/share, ou une URL.</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;jouter</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>A mapping needs both folders.</source>
        <translation>Une correspondance a besoin des deux dossiers.</translation>
    </message>
    <message>
        <source>“%1” is no absolute path: it must begin with a slash.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un chemin absolu&#xa0;: il doit commencer par une barre oblique.</translation>
    </message>
</context>
<context>
    <name>vantrell::PreferencesWindow</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>&amp;General</source>
        <translation>&amp;Général</translation>
    </message>
    <message>
        <source>&amp;Tables</source>
        <translation>&amp;Tableaux</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Restore &amp;Defaults</source>
        <translation>Valeurs par &amp;défaut</translation>
    </message>
    <message>
        <source>Set everything in this window as it is at first</source>
        <translation>Rétablir tous les réglages d’origine de cette fenêtre</translation>
    </message>
    <message>
        <source>Start-up:</source>
        <translation>Démarrage&#xa0;:</translation>
    </message>
    <message>
        <source>Show the &amp;open dialog</source>
        <translation>Afficher le dialogue d’&amp;ouverture</translation>
    </message>
    <message>
        <source>It opens over the start window, unless a project is open by then.</source>
        <translation>Il s’ouvre sur la fenêtre de démarrage, sauf si un projet est déjà ouvert.</translation>
    </message>
    <message>
        <source>Markers:</source>
        <translation>Marqueurs&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;List each marker under its own sequence and clip</source>
        <translation>&amp;Lister sous leur propre séquence et leur propre clip</translation>
    </message>
    <message>
        <source>Otherwise sequences at the same position in different bins share one name, and so do the clips of a track. All open projects are listed anew.</source>
        <translation>Sinon, les séquences situées à la même position dans des chutiers différents partagent un nom, de même que les clips d’une piste. Les marqueurs de tous les projets ouverts sont listés à nouveau.</translation>
    </message>
    <message>
        <source>Unsaved changes:</source>
        <translation>Modifications non enregistrées&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Keep them in a journal</source>
        <translation>Les &amp;conserver dans un journal</translation>
    </message>
    <message>
        <source>After a crash the journal offers to restore them. A project that has unsaved changes now follows this setting once they are saved or undone. Journals that a crash has left are kept, and offered, in any case.</source>
        <translation>Après un plantage, le journal propose de les restaurer. Un projet qui a actuellement des modifications non enregistrées suivra ce réglage une fois qu’elles seront enregistrées ou annulées. Les journaux laissés par un plantage sont conservés, et proposés, dans tous les cas.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Holds from the next start on. Reports, exported lists, logs and the command line are in English.</source>
        <translation>Prend effet au prochain démarrage. Rapports, listes exportées, journaux et ligne de commande sont en anglais.</translation>
    </message>
    <message>
        <source>Use the &amp;font of the other controls</source>
        <translation>Utiliser la &amp;police des autres contrôles</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Police&#xa0;:</translation>
    </message>
    <message>
        <source>Fa&amp;mily:</source>
        <translation>Fa&amp;mille&#xa0;:</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Si&amp;ze:</source>
        <translation>Ta&amp;ille&#xa0;:</translation>
    </message>
    <message>
        <source>As the system’s settings have it: %1</source>
        <translation>Selon les réglages du système&#xa0;: %1</translation>
    </message>
    <message>
        <source>Year, month, day: %1</source>
        <translation>Année, mois, jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Month by name: %1</source>
        <translation>Mois en lettres&#xa0;: %1</translation>
    </message>
    <message>
        <source>D&amp;ates:</source>
        <translation>D&amp;ates&#xa0;:</translation>
    </message>
    <message>
        <source>These are for the tables of all windows. Reports, exported lists and the command line stay as they are.</source>
        <translation>Ces réglages concernent les tableaux de toutes les fenêtres. Les rapports, les listes exportées et la ligne de commande restent inchangés.</translation>
    </message>
    <message>
        <source>The addresses of the pages that the Help menu opens, for a site with pages of its own. An empty field stands for the standard address. The first %@ in an address becomes “halvex”, the second “vantrell”.</source>
        <translation>Les adresses des pages qu’ouvre le menu Aide, pour un site qui a ses propres pages. Un champ vide correspond à l’adresse standard. Le premier %@ d’une adresse devient «&#xa0;halvex&#xa0;», le second «&#xa0;vantrell&#xa0;».</translation>
    </message>
    <message>
        <source>Halve&amp;x home page:</source>
        <translation>Page d’accueil de &amp;Halvex&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Orvandel home page:</source>
        <translation>Page d’accueil d’&amp;Orvandel&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Support:</source>
        <translation>A&amp;ssistance&#xa0;:</translation>
    </message>
    <message>
        <source>Report a &amp;bug:</source>
        <translation>Signaler un &amp;bogue&#xa0;:</translation>
    </message>
    <message>
        <source>Suggest a &amp;feature:</source>
        <translation>S&amp;uggérer une fonctionnalité&#xa0;:</translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation>La&amp;ngue&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintOperation</name>
    <message>
        <source>The printing system cannot be reached; the package “cups-client” has its program “lp”. %1</source>
        <translation>Le système d’impression est inaccessible&#xa0;; son programme «&#xa0;lp&#xa0;» se trouve dans le paquet «&#xa0;cups-client&#xa0;». %1</translation>
    </message>
    <message>
        <source>The printer “%1” did not take the report. %2</source>
        <translation>L’imprimante «&#xa0;%1&#xa0;» n’a pas accepté le rapport. %2</translation>
    </message>
    <message>
        <source>Making the pages…</source>
        <translation>Création des pages…</translation>
    </message>
    <message>
        <source>Making the pages for “%1”…</source>
        <translation>Création des pages pour «&#xa0;%1&#xa0;»…</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintPanel</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>Imp&amp;rimer</translation>
    </message>
    <message>
        <source>PDF files (*.pdf *.PDF)</source>
        <translation>Fichiers PDF (*.pdf *.PDF)</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Im&amp;primante&#xa0;:</translation>
    </message>
    <message>
        <source>C&amp;opies:</source>
        <translation>C&amp;opies&#xa0;:</translation>
    </message>
    <message>
        <source>Pa&amp;per:</source>
        <translation>P&amp;apier&#xa0;:</translation>
    </message>
    <message>
        <source>Or&amp;ientation:</source>
        <translation>Or&amp;ientation&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Margins:</source>
        <translation>&amp;Marges&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vantrell::PrintProgress</name>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>vantrell::ProgressSheet</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>vantrell::QVFCPProjectLoader</name>
    <message>
        <source>Open Final Cut Pro Project</source>
        <translation>Ouvrir un projet Final Cut Pro</translation>
    </message>
    <message>
        <source>&amp;Projects that are open in Final Cut Pro:</source>
        <translation>&amp;Projets ouverts dans Final Cut Pro&#xa0;:</translation>
    </message>
    <message>
        <source>Projects that are open in Final Cut Pro</source>
        <translation>Projets ouverts dans Final Cut Pro</translation>
    </message>
    <message>
        <source>Asking Final Cut Pro</source>
        <translation>Interrogation de Final Cut Pro</translation>
    </message>
    <message>
        <source>Asking Final Cut Pro for its open projects…</source>
        <translation>Interrogation de Final Cut Pro sur ses projets ouverts…</translation>
    </message>
    <message>
        <source>No project is open in Final Cut Pro.</source>
        <translation>Aucun projet n’est ouvert dans Final Cut Pro.</translation>
    </message>
    <message>
        <source>Final Cut Pro does not answer.</source>
        <translation>Final Cut Pro ne répond pas.</translation>
    </message>
    <message>
        <source>Final Cut Pro is not running.</source>
        <translation>Final Cut Pro n’est pas lancé.</translation>
    </message>
    <message>
        <source>Error loading project</source>
        <translation>Erreur de chargement du projet</translation>
    </message>
</context>
<context>
    <name>vantrell::QuitSequence</name>
    <message>
        <source>Do you want to save the changes made to %1 projects before quitting?</source>
        <translation>Voulez-vous enregistrer les modifications apportées à %1 projets avant de quitter&#xa0;?</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Passer en revue…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Discard All</source>
        <translation>Tout abandonner</translation>
    </message>
</context>
<context>
    <name>vantrell::Recovery</name>
    <message>
        <source>The unsaved changes to “%1” could not be restored.</source>
        <translation>Impossible de restaurer les modifications non enregistrées de «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The project is in use. The changes are kept and offered again the next time.</source>
        <translation>Le projet est en cours d’utilisation. Les modifications sont conservées et seront proposées à nouveau la prochaine fois.</translation>
    </message>
</context>
<context>
    <name>vantrell::RecoveryPanel</name>
    <message>
        <source>Changed since</source>
        <translation>Modifié depuis</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquant</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Inchangé</translation>
    </message>
    <message>
        <source>The project was saved by someone else since. Changes that still apply are restored.</source>
        <translation>Le projet a été enregistré entre-temps par quelqu’un d’autre. Les modifications encore applicables seront restaurées.</translation>
    </message>
    <message>
        <source>The project is not where it was. Its changes are kept until it is back.</source>
        <translation>Le projet n’est plus à son emplacement. Ses modifications sont conservées jusqu’à ce qu’il y soit de nouveau.</translation>
    </message>
    <message>
        <source>All changes can be restored.</source>
        <translation>Toutes les modifications peuvent être restaurées.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The program ended before the changes to this project were saved.</source>
        <translation>Le programme s’est terminé avant l’enregistrement des modifications de ce projet.</translation>
    </message>
    <message>
        <source>The program ended before the changes to these projects were saved.</source>
        <translation>Le programme s’est terminé avant l’enregistrement des modifications de ces projets.</translation>
    </message>
    <message>
        <source>Projects with unsaved changes</source>
        <translation>Projets ayant des modifications non enregistrées</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Dernière modification</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>&amp;Discard…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
    <message>
        <source>Do you want to discard the unsaved changes to this project?</source>
        <translation>Voulez-vous supprimer les modifications non enregistrées de ce projet&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to discard the unsaved changes to %1 projects?</source>
        <translation>Voulez-vous supprimer les modifications non enregistrées de %1 projets&#xa0;?</translation>
    </message>
    <message>
        <source>They cannot be restored after that.</source>
        <translation>Elles ne pourront plus être restaurées ensuite.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>A restored project opens with its changes, which are not saved yet. Those left for later are offered again.</source>
        <translation>Un projet restauré s’ouvre avec ses modifications, qui ne sont pas encore enregistrées. Celles remises à plus tard seront proposées à nouveau.</translation>
    </message>
</context>
<context>
    <name>vantrell::RelinkSheet</name>
    <message>
        <source> So it is with %1 other folders.</source>
        <translation> Il en va de même pour %1 autres dossiers.</translation>
    </message>
    <message>
        <source>R&amp;emove</source>
        <translation>Re&amp;tirer</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>Relier</translation>
    </message>
    <message>
        <source>Missing files</source>
        <translation>Fichiers manquants</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>&amp;Use Mapping Instead</source>
        <translation>&amp;Utiliser une correspondance</translation>
    </message>
    <message>
        <source>Look for the files there, and leave the project as it is</source>
        <translation>Chercher les fichiers à cet endroit, et laisser le projet inchangé</translation>
    </message>
    <message>
        <source>1 file is missing.</source>
        <translation>1 fichier est manquant.</translation>
    </message>
    <message>
        <source>%1 files are missing.</source>
        <translation>%1 fichiers sont manquants.</translation>
    </message>
    <message>
        <source>&amp;Look in these folders, and all that is below them:</source>
        <translation>Chercher &amp;dans ces dossiers et tout ce qu’ils contiennent&#xa0;:</translation>
    </message>
    <message>
        <source>Folders to look in</source>
        <translation>Dossiers où chercher</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Ajouter un dossier…</translation>
    </message>
    <message>
        <source>&amp;Relink</source>
        <translation>&amp;Relier</translation>
    </message>
    <message>
        <source>Path &amp;Mappings…</source>
        <translation>&amp;Correspondances de chemins…</translation>
    </message>
    <message>
        <source>Add a Folder to Look In</source>
        <translation>Ajouter un dossier où chercher</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>The search was stopped.</source>
        <translation>La recherche a été interrompue.</translation>
    </message>
    <message>
        <source>%1 folders, %2 files seen, %3 found…</source>
        <translation>Dossiers&#xa0;: %1, fichiers parcourus&#xa0;: %2, trouvés&#xa0;: %3…</translation>
    </message>
    <message>
        <source>%1 of %2 missing files found</source>
        <translation>Fichiers manquants trouvés&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>, %1 of them several times: choose one of each</source>
        <translation>, dont %1 plusieurs fois&#xa0;: choisissez-en un pour chacun</translation>
    </message>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>“%1” does not answer.</source>
        <translation>«&#xa0;%1&#xa0;» ne répond pas.</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Interrompre</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>All of them are found where “%1” is “%2”. A path mapping leaves the project as it is.</source>
        <translation>Tous se trouvent là où «&#xa0;%1&#xa0;» est «&#xa0;%2&#xa0;». Une correspondance de chemins laisse le projet inchangé.</translation>
    </message>
</context>
<context>
    <name>vantrell::RelinkTableModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Match</source>
        <translation>Fichier trouvé</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvé dans</translation>
    </message>
    <message>
        <source>Folder in the Project</source>
        <translation>Dossier dans le projet</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>, %1 files</source>
        <translation>, %1 fichiers</translation>
    </message>
    <message>
        <source>Choose one of %1…</source>
        <translation>Choisir parmi %1…</translation>
    </message>
</context>
<context>
    <name>vantrell::ReportOptions</name>
    <message>
        <source>Color &amp;labels behind marker names</source>
        <translation>&amp;Libellés de couleur après les noms de marqueurs</translation>
    </message>
    <message>
        <source>Columns of the report</source>
        <translation>Colonnes du rapport</translation>
    </message>
    <message>
        <source>Report &amp;title:</source>
        <translation>&amp;Titre du rapport&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Columns:</source>
        <translation>&amp;Colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>All rows on show are included: %1.</source>
        <translation>Toutes les lignes affichées sont incluses&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Only the selected row of %1 is included.</source>
        <translation>Seule la ligne sélectionnée parmi %1 est incluse.</translation>
    </message>
    <message>
        <source>Only the %1 selected rows of %2 are included.</source>
        <translation>Seules les %1 lignes sélectionnées sur %2 sont incluses.</translation>
    </message>
    <message>
        <source>To have all of them, select all (Ctrl+A) first.</source>
        <translation>Pour les avoir toutes, sélectionnez d’abord tout (Ctrl+A).</translation>
    </message>
    <message>
        <source>No row is on show: the report is empty.</source>
        <translation>Aucune ligne n’est affichée&#xa0;: le rapport est vide.</translation>
    </message>
</context>
<context>
    <name>vantrell::ReportView</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
</context>
<context>
    <name>vantrell::SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>vantrell::SharesBar</name>
    <message>
        <source>&lt;1 %</source>
        <translation>&lt;1 %</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 %2 (%3)</source>
        <comment>name, size, percentage</comment>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>+%1</source>
        <comment>further shares</comment>
        <translation>+%1</translation>
    </message>
</context>
<context>
    <name>vantrell::StartWindow</name>
    <message>
        <source>Media, effects and markers
of an editing project</source>
        <translation>Médias, effets et marqueurs
d’un projet de montage</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Choose a project or an XML file</source>
        <translation>Choisir un projet ou un fichier XML</translation>
    </message>
    <message>
        <source>Try the program with a copy of a small project that has something of everything</source>
        <translation>Essayer le programme avec une copie d’un petit projet qui contient un peu de tout</translation>
    </message>
    <message>
        <source>Drop a project or
an XML file here</source>
        <translation>Déposez ici un projet
ou un fichier XML</translation>
    </message>
    <message>
        <source>&amp;Recent projects</source>
        <translation>Projets &amp;récents</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>&amp;Show the open dialog at start-up</source>
        <translation>Afficher le dialogue d’ouver&amp;ture au démarrage</translation>
    </message>
    <message>
        <source>%1, in Final Cut Pro</source>
        <translation>%1, dans Final Cut Pro</translation>
    </message>
    <message>
        <source>Projects that you open are listed here.</source>
        <translation>Les projets que vous ouvrez sont listés ici.</translation>
    </message>
    <message>
        <source>Open Sam&amp;ple Project</source>
        <translation>Ouvrir le projet d’e&amp;xemple</translation>
    </message>
</context>
<context>
    <name>vantrell::TabPane</name>
    <message>
        <source>Reading the project</source>
        <translation>Lecture du projet</translation>
    </message>
    <message>
        <source>Nothing was copied: no row is selected</source>
        <translation>Rien n’a été copié&#xa0;: aucune ligne n’est sélectionnée</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <comment>count and total</comment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <comment>shown and selected</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>Sélection&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 so far</source>
        <translation>%1 jusqu’ici</translation>
    </message>
    <message>
        <source>No project is loaded.</source>
        <translation>Aucun projet n’est chargé.</translation>
    </message>
    <message>
        <source>Nothing can be edited yet, as the project is still being read</source>
        <translation>Rien ne peut encore être modifié, car le projet est en cours de lecture</translation>
    </message>
    <message>
        <source>Nothing can be edited until the operation that is going on has ended</source>
        <translation>Rien ne peut être modifié tant que l’opération en cours n’est pas terminée</translation>
    </message>
    <message>
        <source>Fi&amp;t Column</source>
        <translation>A&amp;juster la colonne</translation>
    </message>
    <message>
        <source>Fit &amp;All Columns</source>
        <translation>Ajuster &amp;toutes les colonnes</translation>
    </message>
    <message>
        <source>&amp;Reset Columns</source>
        <translation>&amp;Rétablir les colonnes</translation>
    </message>
</context>
<context>
    <name>vantrell::TableDelegate</name>
    <message>
        <source>%1, in all %2 selected rows</source>
        <translation>%1, dans les %2 lignes sélectionnées</translation>
    </message>
</context>
<context>
    <name>vantrell::TableModel</name>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
</context>
<context>
    <name>vantrell::VerificationSheet</name>
    <message>
        <source>missing</source>
        <translation>manquant</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>File in the List</source>
        <translation>Fichier de la liste</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 fichier</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>Verify List</source>
        <translation>Vérifier une liste</translation>
    </message>
    <message>
        <source>All files are as listed in “%1”.</source>
        <translation>Tous les fichiers sont conformes à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Not all files are as listed in “%1”.</source>
        <translation>Certains fichiers ne sont pas conformes à «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Verified files</source>
        <translation>Fichiers vérifiés</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the table to the clipboard</source>
        <translation>Copier le tableau dans le presse-papiers</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowComparison</name>
    <message>
        <source>Compare with</source>
        <translation>Comparer avec</translation>
    </message>
    <message>
        <source>Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)</source>
        <translation>Projets Final Cut Pro 7 et fichiers XML (*.fcp *.xml *.FCP *.XML)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparer</translation>
    </message>
    <message>
        <source>Opening “%1”…</source>
        <translation>Ouverture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>“%1” could not be opened.</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The project “%1” is not ready.</source>
        <translation>Le projet «&#xa0;%1&#xa0;» n’est pas prêt.</translation>
    </message>
    <message>
        <source>Wait until it is loaded.</source>
        <translation>Attendez qu’il soit chargé.</translation>
    </message>
    <message>
        <source>“%1” has no two sequences to compare.</source>
        <translation>«&#xa0;%1&#xa0;» n’a pas deux séquences à comparer.</translation>
    </message>
    <message>
        <source>“%1” has no sequence to compare.</source>
        <translation>«&#xa0;%1&#xa0;» n’a aucune séquence à comparer.</translation>
    </message>
    <message>
        <source>“%1” is busy. Try again when that is done.</source>
        <translation>«&#xa0;%1&#xa0;» est occupé. Réessayez une fois l’opération terminée.</translation>
    </message>
    <message>
        <source>Comparing…</source>
        <translation>Comparaison…</translation>
    </message>
    <message>
        <source>The cuts could not be compared; the log tells why.</source>
        <translation>Impossible de comparer les montages&#xa0;; le journal en donne la raison.</translation>
    </message>
    <message>
        <source>The sequences have changed. Compare again first.</source>
        <translation>Les séquences ont changé. Refaites d’abord la comparaison.</translation>
    </message>
    <message>
        <source>The markers could not be added.</source>
        <translation>Impossible d’ajouter les marqueurs.</translation>
    </message>
    <message>
        <source>Adding markers…</source>
        <translation>Ajout des marqueurs…</translation>
    </message>
    <message>
        <source>1 marker added from the old cut</source>
        <translation>1 marqueur de l’ancien montage ajouté</translation>
    </message>
    <message>
        <source>%1 markers added from the old cut</source>
        <translation>%1 marqueurs de l’ancien montage ajoutés</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowMarkerLists</name>
    <message>
        <source>The project is still loading</source>
        <translation>Le projet est encore en cours de chargement</translation>
    </message>
    <message>
        <source>Please wait for the project to finish loading before attempting this operation.</source>
        <translation>Veuillez attendre la fin du chargement du projet avant d’effectuer cette opération.</translation>
    </message>
    <message>
        <source>Adding markers…</source>
        <translation>Ajout des marqueurs…</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Lecture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Reading %1 marker lists…</source>
        <translation>Lecture de %1 listes de marqueurs…</translation>
    </message>
    <message>
        <source>%1 of %2 markers imported</source>
        <translation>Marqueurs importés&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>%1 markers imported from %2 files</source>
        <translation>%1 marqueurs importés de %2 fichiers</translation>
    </message>
    <message>
        <source>1 marker imported from “%1”</source>
        <translation>1 marqueur importé de «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 markers imported from “%2”</source>
        <translation>%1 marqueurs importés de «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>1 marker exported to “%1”</source>
        <translation>1 marqueur exporté dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 markers exported to “%2”</source>
        <translation>%1 marqueurs exportés dans «&#xa0;%2&#xa0;»</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowMedia</name>
    <message>
        <source>No file is missing</source>
        <translation>Aucun fichier n’est manquant</translation>
    </message>
    <message>
        <source>Relinking…</source>
        <translation>Liaison en cours…</translation>
    </message>
    <message>
        <source>1 file relinked</source>
        <translation>1 fichier relié</translation>
    </message>
    <message>
        <source>%1 files relinked</source>
        <translation>%1 fichiers reliés</translation>
    </message>
    <message>
        <source>; 1 is still missing</source>
        <translation>&#xa0;; 1 est encore manquant</translation>
    </message>
    <message>
        <source>; %1 are still missing</source>
        <translation>&#xa0;; %1 sont encore manquants</translation>
    </message>
    <message>
        <source>Files of “%1” are looked for in “%2”</source>
        <translation>Les fichiers de «&#xa0;%1&#xa0;» sont recherchés dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The list could not be exported to “%1”.</source>
        <translation>Impossible d’exporter la liste dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>1 file listed in “%1”</source>
        <translation>1 fichier listé dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 files listed in “%2”</source>
        <translation>%1 fichiers listés dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>; %1 missing left out</source>
        <translation>&#xa0;; fichiers manquants omis&#xa0;: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Some files could not be read, and are not in the list.</source>
        <translation>Certains fichiers n’ont pas pu être lus et ne figurent pas dans la liste.</translation>
    </message>
    <message>
        <source>Some paths hold a line break, and are not in the list.</source>
        <translation>Certains chemins contiennent un saut de ligne et ne figurent pas dans la liste.</translation>
    </message>
    <message>
        <source>Verify List</source>
        <translation>Vérifier une liste</translation>
    </message>
    <message>
        <source>Media hash lists</source>
        <translation>Listes MHL</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Verifying the files of “%1”…</source>
        <translation>Vérification des fichiers de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>There is no file in it.</source>
        <translation>Elle ne contient aucun fichier.</translation>
    </message>
    <message>
        <source>The list “%1” cannot be verified.</source>
        <translation>Impossible de vérifier la liste «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowNotes</name>
    <message>
        <source>There is no sequence</source>
        <translation>Aucune séquence</translation>
    </message>
    <message>
        <source>The project has no sequence that notes could be added to.</source>
        <translation>Le projet n’a aucune séquence à laquelle ajouter des notes.</translation>
    </message>
    <message>
        <source>Import Notes</source>
        <translation>Importer des notes</translation>
    </message>
    <message>
        <source>Lists of notes (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md *.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)</source>
        <translation>Listes de notes (*.txt *.csv *.tsv *.edl *.xml *.fcpxml *.md *.json *.vtt *.srt *.TXT *.CSV *.EDL *.XML)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Reading the notes…</source>
        <translation>Lecture des notes…</translation>
    </message>
    <message>
        <source>Reading “%1”…</source>
        <translation>Lecture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The clipboard holds no list of notes</source>
        <translation>Le presse-papiers ne contient aucune liste de notes</translation>
    </message>
    <message>
        <source>There are no notes in “%1”</source>
        <translation>«&#xa0;%1&#xa0;» ne contient aucune note</translation>
    </message>
    <message>
        <source>No line of the file has a timecode, a frame number or a time.</source>
        <translation>Aucune ligne du fichier ne contient de timecode, de numéro d’image ou de temps.</translation>
    </message>
    <message>
        <source>“%1” could not be read</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Unable to add the notes</source>
        <translation>Impossible d’ajouter les notes</translation>
    </message>
    <message>
        <source>Adding notes…</source>
        <translation>Ajout des notes…</translation>
    </message>
    <message>
        <source>1 note added</source>
        <translation>1 note ajoutée</translation>
    </message>
    <message>
        <source>%1 notes added</source>
        <translation>%1 notes ajoutées</translation>
    </message>
    <message>
        <source>Line %1, “%2”: %3</source>
        <translation>Ligne %1, «&#xa0;%2&#xa0;»&#xa0;: %3</translation>
    </message>
    <message>
        <source>1 note could not be added</source>
        <translation>1 note n’a pas pu être ajoutée</translation>
    </message>
    <message>
        <source>%1 notes could not be added</source>
        <translation>%1 notes n’ont pas pu être ajoutées</translation>
    </message>
    <message>
        <source>… and %1 more</source>
        <translation>… et %1 de plus</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>The notes could not be exported to “%1”.</source>
        <translation>Impossible d’exporter les notes dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>1 marker exported to “%1”</source>
        <translation>1 marqueur exporté dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1 markers exported to “%2”</source>
        <translation>%1 marqueurs exportés dans «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>“%1” cannot hold everything</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas tout contenir</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowReports</name>
    <message>
        <source>The report could not be printed.</source>
        <translation>Impossible d’imprimer le rapport.</translation>
    </message>
    <message>
        <source>Another report is being printed.</source>
        <translation>Un autre rapport est en cours d’impression.</translation>
    </message>
    <message>
        <source>Close its print panel first.</source>
        <translation>Fermez d’abord son dialogue d’impression.</translation>
    </message>
    <message>
        <source>Preparing the report…</source>
        <translation>Préparation du rapport…</translation>
    </message>
    <message>
        <source>Report saved to “%1”</source>
        <translation>Rapport enregistré dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Report handed to the printer “%1”</source>
        <translation>Rapport transmis à l’imprimante «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Report exported to “%1”</source>
        <translation>Rapport exporté dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The report could not be exported to “%1”.</source>
        <translation>Impossible d’exporter le rapport dans «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowSaving</name>
    <message>
        <source>The document “%1” could not be saved.</source>
        <translation>Impossible d’enregistrer le document «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The file is open in another window. Close that window first, or choose another name.</source>
        <translation>Le fichier est ouvert dans une autre fenêtre. Fermez d’abord cette fenêtre, ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Saving “%1”…</source>
        <translation>Enregistrement de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>XML files (*.xml *.XML)</source>
        <translation>Fichiers XML (*.xml *.XML)</translation>
    </message>
    <message>
        <source>Your changes since it was last saved will be lost.</source>
        <translation>Vos modifications depuis le dernier enregistrement seront perdues.</translation>
    </message>
    <message>
        <source>%1 will be lost.</source>
        <translation>Vous perdrez %1.</translation>
    </message>
    <message>
        <source>Do you want to revert to the saved version of “%1”?</source>
        <translation>Voulez-vous revenir à la version enregistrée de «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Edit ▸ Undo Revert brings the project back as it is now, until you save, revert again or close the window.</source>
        <translation>Édition ▸ Annuler le retour à la version enregistrée rétablit le projet dans son état actuel, jusqu’à un enregistrement, un nouveau retour ou la fermeture de la fenêtre.</translation>
    </message>
    <message>
        <source>Waiting for the question in another window…</source>
        <translation>En attente de la question dans une autre fenêtre…</translation>
    </message>
    <message>
        <source>Waiting for the volume of “%1”…</source>
        <translation>En attente du volume de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>“%1” cannot be read any more.</source>
        <translation>«&#xa0;%1&#xa0;» n’est plus lisible.</translation>
    </message>
    <message>
        <source>The project stays open as it is. You can save it to another place.</source>
        <translation>Le projet reste ouvert tel quel. Vous pouvez l’enregistrer à un autre emplacement.</translation>
    </message>
    <message>
        <source>Do you want to save the changes made to “%1”?</source>
        <translation>Voulez-vous enregistrer les modifications apportées à «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don’t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>They are being sent. Your changes may be lost if you don’t wait for that.</source>
        <translation>Elles sont en cours d’envoi. Vos modifications risquent d’être perdues si vous n’attendez pas la fin.</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don’t save them.</source>
        <translation>Vos modifications seront perdues si vous ne les enregistrez pas.</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowSending</name>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>The changes are still being sent.</source>
        <translation>Les modifications sont encore en cours d’envoi.</translation>
    </message>
    <message>
        <source>Export Changed Sequences</source>
        <translation>Exporter les séquences modifiées</translation>
    </message>
    <message>
        <source>XML files (*.xml *.XML)</source>
        <translation>Fichiers XML (*.xml *.XML)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>The changed sequences could not be exported.</source>
        <translation>Impossible d’exporter les séquences modifiées.</translation>
    </message>
    <message>
        <source>“%1” is open in a window. Choose another name.</source>
        <translation>«&#xa0;%1&#xa0;» est ouvert dans une fenêtre. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Impossible d’écrire le fichier.</translation>
    </message>
    <message>
        <source>Writing “%1”…</source>
        <translation>Écriture de «&#xa0;%1&#xa0;»…</translation>
    </message>
    <message>
        <source>Changed sequences exported to “%1”</source>
        <translation>Séquences modifiées exportées dans «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The changed sequences could not be exported to “%1”.</source>
        <translation>Impossible d’exporter les séquences modifiées dans «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>vantrell::WindowWork</name>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
</context>
</TS>
