// SPDX-FileCopyrightText: The Velquon developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture_commands.h"

#include <utility>

#include "app/picture_files.h"
#include "ui_menus.h"
#include "widgets/commands.h"

namespace velquon {

void add_picture_commands(Commands& commands, const Ui::Menus& menus, PictureFiles& pictures,
                          std::function<std::string()> event_name) {
  const auto has_view = [&pictures] { return pictures.hasView(); };
  commands.add({{.item = menus.save_picture_item,
                 .run = [&pictures, name = std::move(event_name)] { pictures.savePicture(name()); },
                 .is_enabled = has_view},
                {.item = menus.copy_picture_item,
                 .run = [&pictures] { pictures.copyPicture(); },
                 .is_enabled = has_view}});
}

}  // namespace velquon
